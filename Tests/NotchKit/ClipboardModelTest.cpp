#include "NotchKit/Tools/Clipboard/ClipboardModel.h"
#include "NotchKit/Tools/Clipboard/ClipboardReader.h"
#include "Support/Core.h"

#include <sys/stat.h>

namespace {

using Kind = ClipboardItem::Kind;

const QString kKey = u"notch.clipboardItems"_s;

EncodedPicture png(int width, int height, QRgb color = 0xff336699)
{
    return {encoded(plainImage({width, height}, color)), QString::fromLatin1(Pasteboard::kPng)};
}

/// The core with a pasteboard that other programs copy to.
struct Stage : Fakes::Core
{
    ClipboardModel &clipboard = *services.model<ClipboardModel>();

    Stage() { services.start(); }

    /// Half a second in which the pasteboard is looked at and what is read is taken in.
    void settle()
    {
        wait(500);
        Q_EMIT pasteboard.changed();
        Fakes::finishWork();
    }
    template <typename Copied>
    void userCopies(const Copied &copied)
    {
        pasteboard.offer(copied);
        settle();
    }
    void userCopies(const char *text) { userCopies(QString::fromUtf8(text)); }

    QStringList texts() const { return each(clipboard.visible(), &ClipboardItem::text); }
    QByteArray stored() const { return defaults.value<QByteArray>(kKey).value_or(QByteArray()); }
};

} // namespace

class ClipboardModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAndLinks_data()
    {
        const auto row = columns<QString, QString, Kind>();
        const QString family = u"👨‍👩‍👧‍👦"_s;
        row("trimmed", u"\n\t a b\u00a0\u2028"_s, u"a b"_s, Kind::text);
        row("link", u" HTTPS://example.org/a?b#c\n"_s, u"HTTPS://example.org/a?b#c"_s, Kind::link);
        row("inner space", u"https://example.org/a b"_s, u"https://example.org/a b"_s, Kind::text);
        row("inner line", u"http://a\nhttp://b"_s, u"http://a\nhttp://b"_s, Kind::text);
        row("no scheme", u"example.org"_s, u"example.org"_s, Kind::text);
        row("other scheme", u"ftp://example.org"_s, u"ftp://example.org"_s, Kind::text);
        row("no address", u"http://[::1"_s, u"http://[::1"_s, Kind::text);
        row("4000 letters", QString(4000, u'x'), QString(4000, u'x'), Kind::text);
        row("5000 letters", QString(5000, u'x'), QString(4000, u'x'), Kind::text);
        row("characters of many code points", family.repeated(4001), family.repeated(4000), Kind::text);
        const QString marks = u"e"_s + QString(70'000, QChar(0x301));
        row("one character of many marks", marks, marks, Kind::text);
        const QString longLink = u"https://example.org/"_s + QString(9000, u'y');
        row("long link", longLink, longLink, Kind::link);
        const QString endless = longLink + QString(71'000, u'y');
        row("link beyond all bounds", endless, endless.left(4000), Kind::text);
        const QString selector = u"\U000e0100"_s; // A pair of surrogates that joins the character before it.
        row("one endless character", u"e"_s + selector.repeated(50'000), u"e"_s + selector.repeated(39'999),
            Kind::text);
    }

    void textsAndLinks()
    {
        const auto [copied, text, kind] = fetched<QString, QString, Kind>();
        const auto item = clipboardItemOfText(copied);
        QVERIFY(item);
        QCOMPARE(item->text, text);
        QCOMPARE(item->kind, kind);
        QVERIFY(!clipboardItemOfText(u" \n\t "_s));
    }

    void filesByTheirExtensions_data()
    {
        columns<QStringList, Kind>();
        QTest::newRow("pdfs") << QStringList{u"/a/x.pdf"_s, u"/a/y.PDF"_s} << Kind::pdf;
        QTest::newRow("images") << QStringList{u"/a/x.png"_s, u"/b/y.svg"_s} << Kind::image;
        QTest::newRow("mixed") << QStringList{u"/a/x.pdf"_s, u"/a/y.png"_s} << Kind::file;
        QTest::newRow("other") << QStringList{u"/a/x.txt"_s} << Kind::file;
        QTest::newRow("unknown spoils") << QStringList{u"/a/x.pdf"_s, u"/a/y.qqqz"_s} << Kind::file;
        QTest::newRow("none") << QStringList{u"/a/pdf"_s, u"/a/.png"_s} << Kind::file;
        QTest::newRow("folder") << QStringList{u"/a/ü b c/"_s} << Kind::file;
    }

    void filesByTheirExtensions()
    {
        const auto [paths, kind] = fetched<QStringList, Kind>();
        Stage stage;
        stage.userCopies(fileUrls(paths));
        const auto item = stage.clipboard.items().value(0);
        QCOMPARE(item.kind, kind);
        QCOMPARE(item.paths, paths);
        const QStringList names = each(paths, [](const QString &path) { return path.section(u'/', 2, 2); });
        QCOMPARE(item.text, names.join(u", "_s));
    }

    void onlyTheNewestIsCompared()
    {
        Stage stage;
        stage.userCopies("before");
        for (const char *text : {"A", "A", "B", "A"})
            stage.userCopies(text);
        stage.userCopies("  \n");
        QCOMPARE(stage.texts(), QStringList({u"A"_s, u"B"_s, u"A"_s, u"before"_s}));
        for (int i = 0; i < 60; ++i)
            stage.userCopies(QString::number(i));
        QCOMPARE(stage.clipboard.items().size(), 60);
        QCOMPARE(stage.texts().last(), u"0"_s);
        stage.userCopies(png(4, 3, 0xffff0000));
        stage.userCopies(png(4, 3, 0xff00ff00));
        stage.userCopies(png(4, 3, 0xff00ff00));
        QCOMPARE(stage.texts().first(3), QStringList({u"Image 4×3"_s, u"Image 4×3"_s, u"59"_s}));
    }

    /// What is longer than its row, or marked up, is given back as it came as long as the program runs.
    void originalsAreGivenBack()
    {
        Stage stage;
        const QString code = u"    "_s + QString(5000, u'x') + u'\n';
        stage.pasteboard.offer(code);
        stage.pasteboard.offered.append(u"text/html"_s);
        stage.pasteboard.markup = "<b>x</b>";
        stage.settle();
        stage.userCopies(QString(code).replace(4500, 1, u'y')); // Another text with the same row.
        QCOMPARE(stage.texts(), QStringList(2, QString(4000, u'x')));
        stage.clipboard.copy(stage.clipboard.items().last().idText());
        QCOMPARE(stage.pasteboard.written.text, code);
        QCOMPARE(stage.pasteboard.written.html, "<b>x</b>"_ba);
        QVERIFY(!stage.stored().contains("<b>") && stage.stored().size() < 10'000);

        const auto kept = [&] {
            return std::ranges::count_if(stage.clipboard.items(), [](const ClipboardItem &item) {
                return item.wholeText().size() > 4'000;
            });
        };
        QCOMPARE(kept(), 2);
        for (int i = 0; i < 5; ++i) // Of seven megabytes each, which take fourteen.
            stage.userCopies(QString(7'000'000, QChar(u'a' + i)));
        QCOMPARE(kept(), 4);
        QCOMPARE(stage.clipboard.items().size(), 7);
    }

    void pinnedItemsStay()
    {
        Stage stage;
        const QString code = u"\t"_s + QString(5000, u'x');
        stage.userCopies(code);
        stage.userCopies("old");
        const auto pin = [&](const char *text, bool pinned) {
            const auto item = std::ranges::find(stage.clipboard.items(), QLatin1String(text),
                                                [](const ClipboardItem &one) { return one.text.left(3); });
            stage.clipboard.setPinned(item->idText(), pinned);
        };
        pin("xxx", true);
        pin("old", true);
        for (int i = 0; i < 61; ++i)
            stage.userCopies(QString::number(i));
        QCOMPARE(stage.clipboard.items().size(), 62);
        QCOMPARE(stage.texts().first(3), QStringList({u"old"_s, QString(4000, u'x'), u"60"_s}));

        NotchSettings settings(stage.defaults);
        const auto restarted = [&] {
            return std::make_unique<ClipboardModel>(settings, stage.defaults, stage.clock, stage.pasteboard,
                                                    Fakes::pictures());
        };
        QCOMPARE(each(restarted()->visible(), &ClipboardItem::text), stage.texts());
        stage.clipboard.clear();
        QCOMPARE(stage.stored(), QByteArray("[]"));
        const auto again = restarted();
        QCOMPARE(each(again->items(), &ClipboardItem::wholeText), QStringList({u"old"_s, code}));
        QVERIFY(again->items().first().pinned);

        pin("old", false);
        stage.clipboard.clear();
        stage.clipboard.remove(stage.clipboard.items().first());
        QVERIFY(restarted()->items().isEmpty());
    }

    void ignoredPrograms_data()
    {
        const auto row = columns<QStringList, QStringList, int>();
        row("by a part, in any case", {u"Secrets"_s, u""_s}, {u"org.example.secrets"_s}, 0);
        row("another", {u"secrets"_s}, {u"editor"_s, u"Editor"_s}, 1);
        row("unknown", {u"secrets"_s}, {}, 1);
    }

    void ignoredPrograms()
    {
        const auto [ignored, programs, recorded] = fetched<QStringList, QStringList, int>();
        Stage stage;
        stage.settings.setIgnoredClipboardPrograms(ignored);
        stage.pasteboard.programs = programs;
        stage.userCopies("text");
        QCOMPARE(stage.clipboard.items().size(), recorded);
        QCOMPARE(stage.pasteboard.asked.contains(u"string"_s), recorded == 1);
    }

    /// Each copy of a burst is kept; what is stored comes after at most a tenth of a second, and at the end.
    void burstsAreStoredTogether_data() { noAndYes("later", "at the end"); }
    void burstsAreStoredTogether()
    {
        const auto [ends] = fetched<bool>();
        Stage stage;
        const auto copies = [&](const char *text) {
            stage.pasteboard.offer(QString::fromUtf8(text));
            Q_EMIT stage.pasteboard.changed();
            Fakes::finishWork();
        };
        copies("1");
        const QByteArray first = stage.stored();
        QVERIFY(!first.isEmpty());
        copies("2");
        stage.pasteboard.held = true;
        copies("3");
        stage.pasteboard.release();
        Fakes::finishWork();
        QCOMPARE(stage.texts(), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
        stage.wait(99);
        QCOMPARE(stage.stored(), first);
        if (ends)
            stage.services.stop();
        else
            stage.wait(1);
        QCOMPARE(decodeClipboardItems(stage.stored(), false)->size(), 3);
        stage.wait(100);
        copies("4");
        QCOMPARE(decodeClipboardItems(stage.stored(), false)->size(), ends ? 3 : 4);
    }

    /// What was copied last is offered on when the program that it is of ends, unless it is not to be kept.
    void orphansAreOfferedOn()
    {
        Stage stage;
        const auto isOfferedOn = [&] {
            const qint64 before = stage.pasteboard.count;
            stage.pasteboard.orphaned = true;
            stage.settle();
            const bool offered = !stage.pasteboard.orphaned;
            return offered && stage.pasteboard.count == before + 1;
        };
        QVERIFY(!isOfferedOn()); // It was there before the history.
        stage.userCopies("\ttext");
        QVERIFY(isOfferedOn());
        QCOMPARE(stage.pasteboard.written.text, u"\ttext"_s);
        QCOMPARE(stage.texts(), QStringList{u"text"_s});

        stage.pasteboard.replace(
            {QString::fromLatin1(Pasteboard::kString), u"org.nspasteboard.ConcealedType"_s});
        stage.settle();
        QVERIFY(!isOfferedOn());
        stage.userCopies("deleted");
        stage.clipboard.remove(stage.clipboard.items().first());
        QVERIFY(!isOfferedOn());
        stage.userCopies("switched off");
        stage.settings.setClipboardHistory(false);
        QVERIFY(!isOfferedOn());
    }

    void secretsAreNotAskedFor_data() { texts({"ConcealedType", "TransientType", "AutoGeneratedType"}); }

    void secretsAreNotAskedFor()
    {
        const auto [marker] = fetched<QString>();
        Stage stage;
        stage.pasteboard.replace({QString::fromLatin1(Pasteboard::kFileUrls),
                                  QString::fromLatin1(Pasteboard::kString), u"org.nspasteboard."_s + marker});
        stage.pasteboard.text = u"hunter2"_s;
        stage.pasteboard.urls = fileUrls({u"/a/x.pdf"_s});
        stage.settle();
        QCOMPARE(stage.pasteboard.asked, QStringList{u"types"_s});
        QVERIFY(stage.clipboard.items().isEmpty() && !stage.stored().contains("hunter2"));
    }

    void pictures_data()
    {
        const auto row = columns<EncodedPicture, QString, QString>();
        const EncodedPicture plain = png(300, 200);
        const EncodedPicture tiff{encoded(plainImage({300, 200}), "tiff"),
                                  QString::fromLatin1(Pasteboard::kTiff)};
        row("png", plain, QString(), "Image 300×200");
        row("tiff", tiff, QString(), "Image 300×200");
        row("narrow", png(3, 20'000), QString(), "Image 3×20000");
        row("text wins", plain, "beside", "beside");
        row("damaged", EncodedPicture{plain.data.left(60), plain.type}, QString(), QString());
        row("no picture", EncodedPicture{"nonsense", plain.type}, QString(), QString());
        row("decompression bomb", {pictureBomb(), plain.type}, QString(), QString());
    }

    void pictures()
    {
        const auto [picture, beside, text] = fetched<EncodedPicture, QString, QString>();
        Stage stage;
        stage.pasteboard.offer(picture);
        if (!beside.isEmpty()) {
            stage.pasteboard.offered.append(QString::fromLatin1(Pasteboard::kString));
            stage.pasteboard.text = beside;
        }
        stage.settle();
        QCOMPARE(stage.texts().value(0), text);
        if (stage.texts().isEmpty() || !beside.isEmpty())
            return;
        const ClipboardItem item = stage.clipboard.items().first();
        QVERIFY(!item.thumbnail().isNull() && item.thumbnail().width() <= ClipboardPicture::kThumbnailSide &&
                item.thumbnail().height() <= ClipboardPicture::kThumbnailSide);
        QCOMPARE(stage.stored(), QByteArray("[]"));
        stage.clipboard.copy(item);
        const auto written = stage.pasteboard.writtenPictures();
        QCOMPARE(written.first(), picture);
        QCOMPARE(written.last().type, QString::fromLatin1(Pasteboard::kPng));
        QCOMPARE(QImage::fromData(written.last().data).convertToFormat(QImage::Format_RGB32),
                 QImage::fromData(picture.data).convertToFormat(QImage::Format_RGB32));
    }

    void pictureFilesAreShownAndGivenBack()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"photo.jpg"_s);
        const QByteArray bytes = encoded(plainImage({40, 30}), "jpg");
        QVERIFY(writeFile(path, bytes));
        const QString fifo = folder.filePath(u"pipe.png"_s);
        QCOMPARE(mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);

        Stage stage;
        stage.userCopies(fileUrls({path, fifo}));
        const ClipboardItem shown = stage.clipboard.items().first();
        QCOMPARE(shown.thumbnail().size(), QSize(40, 30));
        stage.clipboard.copy(shown);
        const auto written = stage.pasteboard.writtenPictures();
        QCOMPARE(written.first(), (EncodedPicture{bytes, u"image/jpeg"_s}));
        QCOMPARE(QImage::fromData(written.at(1).data, "png").size(), QSize(40, 30));
        QCOMPARE(stage.pasteboard.written.files, fileUrls({path, fifo}));

        stage.userCopies(fileUrls({fifo}));
        QVERIFY(stage.clipboard.items().first().thumbnail().isNull());

        NotchSettings settings(stage.defaults);
        ClipboardModel restarted(settings, stage.defaults, stage.clock, stage.pasteboard, Fakes::pictures());
        const ClipboardItem reread = restarted.items().at(1);
        QVERIFY(reread.thumbnail().isNull());
        restarted.copy(reread);
        QCOMPARE(stage.pasteboard.written.files, fileUrls({path, fifo}));
    }

    void picturesStayWithinTheirBudget()
    {
        Stage stage;
        EncodedPicture large = png(8, 8);
        large.data.append(QByteArray(60 * 1024 * 1024, 'x'));
        stage.userCopies("old text");
        for (int i = 0; i < 6; ++i) {
            stage.userCopies(large);
            stage.userCopies(QString::number(i));
        }
        qint64 cost = 0;
        int pictures = 0;
        for (const auto &item : stage.clipboard.items()) {
            cost += item.image.wrappedValue ? item.image.wrappedValue->cost() : 0;
            pictures += item.kind == Kind::image ? 1 : 0;
        }
        QVERIFY(cost <= ClipboardModel::kPictureBudget);
        QCOMPARE(pictures, 4);
        QCOMPARE(stage.texts().last(), u"old text"_s);
    }

    void offMeansUnread()
    {
        Stage stage;
        stage.settings.setClipboardHistory(false);
        stage.userCopies("while off");
        stage.settings.setClipboardHistory(true);
        stage.settle();
        QVERIFY(stage.clipboard.items().isEmpty() && stage.pasteboard.asked.isEmpty());

        stage.pasteboard.held = true;
        stage.userCopies("switched off while it is read");
        stage.settings.setEnabled(NotchTool::clipboard, false);
        while (stage.pasteboard.held || !stage.pasteboard.waiting.empty()) {
            stage.pasteboard.release();
            stage.settle();
        }
        stage.userCopies("tool disabled");
        QVERIFY(stage.clipboard.items().isEmpty());
        QCOMPARE(stage.pasteboard.asked.count(u"types"_s), 1);
    }

    void oneReadAtATime()
    {
        Stage stage;
        stage.pasteboard.held = true;
        stage.userCopies("slow");
        stage.userCopies("next");
        stage.settle();
        QCOMPARE(stage.pasteboard.asked, QStringList{u"types"_s});
        stage.pasteboard.release();
        for (int i = 0; i < 3; ++i)
            stage.settle();
        QCOMPARE(stage.texts(), QStringList{u"next"_s});
    }

    void filterAndQuery()
    {
        using Filter = ClipboardModel::Filter;
        Stage stage;
        stage.userCopies("Hello World");
        stage.userCopies("https://example.org/hello");
        stage.userCopies(fileUrls({u"/a/hello.pdf"_s}));
        stage.userCopies(fileUrls({u"/a/hello.txt"_s}));
        stage.userCopies(png(2, 2));
        const QList<std::pair<Filter, int>> expected{
            {Filter::all, 5}, {Filter::text, 1}, {Filter::links, 1}, {Filter::images, 1}, {Filter::pdfs, 1}};
        for (const auto &[filter, count] : expected) {
            stage.clipboard.setFilter(filter);
            QCOMPARE(stage.texts().size(), count);
        }
        stage.clipboard.setFilter(Filter::all);
        const QList<std::pair<QString, int>> queries{
            {u" \t"_s, 5}, {u" HELLO\t"_s, 4}, {u"hello\n"_s, 0}, {u"o w"_s, 1}};
        for (const auto &[query, count] : queries) {
            stage.clipboard.setQuery(query);
            QCOMPARE(stage.texts().size(), count);
        }
    }

    void copyingBackMovesToTheTop()
    {
        Stage stage;
        for (const char *text : {"A", "B", "C"})
            stage.userCopies(text);
        const ClipboardItem oldest = stage.clipboard.items().last();
        stage.clipboard.copy(oldest.idText());
        QCOMPARE(stage.pasteboard.written.text, u"A"_s);
        QCOMPARE(stage.clipboard.items().first(), oldest);
        const QByteArray stored = stage.stored();
        stage.settle();
        QCOMPARE(stage.texts(), QStringList({u"A"_s, u"C"_s, u"B"_s}));
        QCOMPARE(stage.pasteboard.asked.count(u"types"_s), 3);
        stage.clipboard.remove(oldest.idText());
        stage.clipboard.remove(u"unknown"_s);
        QCOMPARE(stage.texts(), QStringList({u"C"_s, u"B"_s}));
        QVERIFY(stage.stored() != stored && stage.defaults.hasDamagedCopies);
        stage.clipboard.clear();
        QCOMPARE(stage.stored(), QByteArray("[]"));
        QVERIFY(!stage.defaults.hasDamagedCopies);
    }

    void storedFormat();
    void damagedStoresAreLeftAlone_data()
    {
        const QByteArray good =
            R"([{"id":"0A0A0A0A-1111-4222-8333-444444444444","kind":"text","text":"a","paths":[],"date":1,"image":{}}])";
        const auto row = columns<DefaultsValue>();
        const auto changed = [&](const char *from, const char *to) {
            return QByteArray(good).replace(from, to);
        };
        QVERIFY(decodeClipboardItems(good));
        row("string", QString::fromUtf8(good));
        row("cut", good.left(40));
        row("object", QByteArray("{}"));
        row("kind", changed("\"text\",\"text\"", "\"movie\",\"text\""));
        row("id", changed("0A0A0A0A-1111", "0A0A0A0A-111"));
        row("no text", changed("\"text\":\"a\",", ""));
        row("paths", changed("\"paths\":[]", "\"paths\":[1]"));
        row("date", changed(":1,", ":1e300,"));
        row("one of two", changed("}]", "},5]").replace("{}},5", "{}},5"));
    }

    void damagedStoresAreLeftAlone()
    {
        const auto [value] = fetched<DefaultsValue>();
        Fakes::Core core;
        core.defaults.values.insert(kKey, value);
        ClipboardModel model(core.settings, core.defaults, core.clock, core.pasteboard, Fakes::pictures());
        QVERIFY(model.items().isEmpty());
        QCOMPARE(core.defaults.values.value(kKey), value);
    }
};

void ClipboardModelTest::storedFormat()
{
    Stage stage;
    stage.userCopies(fileUrls({u"/a/ü.pdf"_s, u"/b/\".pdf"_s}));
    const auto item = stage.clipboard.items().first();
    const QJsonObject object = QJsonDocument::fromJson(stage.stored()).array().at(0).toObject();
    const QJsonObject expected{
        {u"id"_s, item.id.toString(QUuid::WithoutBraces).toUpper()},
        {u"kind"_s, u"pdf"_s},
        {u"text"_s, u"ü.pdf, \".pdf"_s},
        {u"paths"_s, QJsonArray{u"/a/ü.pdf"_s, u"/b/\".pdf"_s}},
        {u"date"_s, static_cast<double>(item.date.toMSecsSinceEpoch()) / 1000 - 978'307'200},
        {u"image"_s, QJsonObject()}};
    QCOMPARE(object, expected);
    QCOMPARE(decodeClipboardItems(stage.stored()), stage.clipboard.items());
    QCOMPARE(item.date, stage.clock.now());

    const auto foreign = decodeClipboardItems(
        R"([{"image":7,"more":[],"id":"0a0a0a0a-1111-4222-8333-444444444444","kind":"link","text":"http://a",
             "paths":[],"date":-1.5}])");
    QVERIFY(foreign && foreign->size() == 1);
    QCOMPARE(foreign->first().date, QDateTime(QDate(2000, 12, 31), QTime(23, 59, 58, 500), kUtc));
}

REGISTER_TEST(ClipboardModelTest);
#include "ClipboardModelTest.moc"
