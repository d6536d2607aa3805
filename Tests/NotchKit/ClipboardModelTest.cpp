#include "NotchKit/Tools/Clipboard/ClipboardModel.h"
#include "NotchKit/Platform/Utc.h"
#include "NotchKit/Tools/Clipboard/ClipboardReader.h"
#include "Support/Core.h"
#include "Support/TestRegistry.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Kestrune;

namespace {

const QString kKey = QStringLiteral("notch.clipboardItems");

QByteArray encodedImage(int width, int height, const char *format = "png", QRgb color = 0xff336699)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

EncodedPicture png(int width, int height, QRgb color = 0xff336699)
{
    return {encodedImage(width, height, "png", color), QString::fromLatin1(Pasteboard::kPng)};
}

/// A few kilobytes that would unpack to more pixels than are allowed.
EncodedPicture bomb()
{
    QImage image(9000, 9000, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, "png");
    return {buffer.data(), QString::fromLatin1(Pasteboard::kPng)};
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
        Fakes::finishWork();
    }
    template <typename Copied>
    void userCopies(const Copied &copied)
    {
        pasteboard.offer(copied);
        settle();
    }
    void userCopies(const char *text) { userCopies(QString::fromUtf8(text)); }

    QStringList texts() const
    {
        QStringList texts;
        for (const auto &item : clipboard.visible())
            texts.append(item.text);
        return texts;
    }
    QByteArray stored() const { return defaults.value<QByteArray>(kKey).value_or(QByteArray()); }
};

QList<QUrl> urls(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

} // namespace

class ClipboardModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAndLinks_data();
    void textsAndLinks();
    void filesByTheirExtensions_data();
    void filesByTheirExtensions();
    void onlyTheNewestIsCompared();
    void secretsAreNotAskedFor_data();
    void secretsAreNotAskedFor();
    void pictures_data();
    void pictures();
    void pictureFilesAreShownAndGivenBack();
    void picturesStayWithinTheirBudget();
    void offMeansUnread();
    void oneReadAtATime();
    void filterAndQuery();
    void copyingBackMovesToTheTop();
    void storedFormat();
    void damagedStoresAreLeftAlone_data();
    void damagedStoresAreLeftAlone();
};

void ClipboardModelTest::textsAndLinks_data()
{
    using Kind = ClipboardItem::Kind;
    QTest::addColumn<QString>("copied");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Kind>("kind");
    const auto row = [](const char *name, const QString &copied, const QString &text, Kind kind) {
        QTest::newRow(name) << copied << text << kind;
    };
    const QString family = QStringLiteral("👨‍👩‍👧‍👦");
    row("trimmed", QStringLiteral("\n\t a b\u00a0\u2028"), QStringLiteral("a b"), Kind::text);
    row("link", QStringLiteral(" HTTPS://example.org/a?b#c\n"), QStringLiteral("HTTPS://example.org/a?b#c"),
        Kind::link);
    row("inner space", QStringLiteral("https://example.org/a b"), QStringLiteral("https://example.org/a b"),
        Kind::text);
    row("inner line", QStringLiteral("http://a\nhttp://b"), QStringLiteral("http://a\nhttp://b"), Kind::text);
    row("no scheme", QStringLiteral("example.org"), QStringLiteral("example.org"), Kind::text);
    row("other scheme", QStringLiteral("ftp://example.org"), QStringLiteral("ftp://example.org"), Kind::text);
    row("no address", QStringLiteral("http://[::1"), QStringLiteral("http://[::1"), Kind::text);
    row("4000 letters", QString(4000, u'x'), QString(4000, u'x'), Kind::text);
    row("5000 letters", QString(5000, u'x'), QString(4000, u'x'), Kind::text);
    row("characters of many code points", family.repeated(4001), family.repeated(4000), Kind::text);
    const QString marks = QStringLiteral("e") + QString(70'000, QChar(0x301));
    row("one character of many marks", marks, marks, Kind::text);
    const QString longLink = QStringLiteral("https://example.org/") + QString(9000, u'y');
    row("long link", longLink, longLink, Kind::link);
}

void ClipboardModelTest::textsAndLinks()
{
    QFETCH(const QString, copied);
    const auto item = clipboardItemOfText(copied);
    QVERIFY(item);
    QTEST(item->text, "text");
    QTEST(item->kind, "kind");
    QVERIFY(!clipboardItemOfText(QStringLiteral(" \n\t ")));
}

void ClipboardModelTest::filesByTheirExtensions_data()
{
    using Kind = ClipboardItem::Kind;
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<Kind>("kind");
    QTest::newRow("pdfs") << QStringList{QStringLiteral("/a/x.pdf"), QStringLiteral("/a/y.PDF")} << Kind::pdf;
    QTest::newRow("images") << QStringList{QStringLiteral("/a/x.png"), QStringLiteral("/b/y.svg")}
                            << Kind::image;
    QTest::newRow("mixed") << QStringList{QStringLiteral("/a/x.pdf"), QStringLiteral("/a/y.png")}
                           << Kind::file;
    QTest::newRow("other") << QStringList{QStringLiteral("/a/x.txt")} << Kind::file;
    QTest::newRow("unknown spoils") << QStringList{QStringLiteral("/a/x.pdf"), QStringLiteral("/a/y.qqqz")}
                                    << Kind::file;
    QTest::newRow("none") << QStringList{QStringLiteral("/a/pdf"), QStringLiteral("/a/.png")} << Kind::file;
    QTest::newRow("folder") << QStringList{QStringLiteral("/a/ü b c/")} << Kind::file;
}

void ClipboardModelTest::filesByTheirExtensions()
{
    QFETCH(const QStringList, paths);
    Stage stage;
    stage.userCopies(urls(paths));
    const auto item = stage.clipboard.items().value(0);
    QTEST(item.kind, "kind");
    QCOMPARE(item.paths, paths);
    QStringList names;
    for (const QString &path : paths)
        names.append(path.section(u'/', 2, 2));
    QCOMPARE(item.text, names.join(QStringLiteral(", ")));
}

void ClipboardModelTest::onlyTheNewestIsCompared()
{
    Stage stage;
    stage.userCopies("before");
    for (const char *text : {"A", "A", "B", "A"})
        stage.userCopies(text);
    stage.userCopies("  \n");
    QCOMPARE(stage.texts(), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("A"),
                                         QStringLiteral("before")}));
    for (int i = 0; i < 60; ++i)
        stage.userCopies(QString::number(i));
    QCOMPARE(stage.clipboard.items().size(), 60);
    QCOMPARE(stage.texts().last(), QStringLiteral("0"));
    stage.userCopies(png(4, 3, 0xffff0000));
    stage.userCopies(png(4, 3, 0xff00ff00));
    QCOMPARE(stage.texts().first(), QStringLiteral("Image 4×3"));
    QCOMPARE(stage.texts().at(1), QStringLiteral("59"));
}

void ClipboardModelTest::secretsAreNotAskedFor_data()
{
    QTest::addColumn<QString>("marker");
    for (const char *marker : {"ConcealedType", "TransientType", "AutoGeneratedType"})
        QTest::newRow(marker) << QStringLiteral("org.nspasteboard.") + QLatin1String(marker);
}

void ClipboardModelTest::secretsAreNotAskedFor()
{
    QFETCH(const QString, marker);
    Stage stage;
    stage.pasteboard.replace(
        {QString::fromLatin1(Pasteboard::kFileUrls), QString::fromLatin1(Pasteboard::kString), marker});
    stage.pasteboard.text = QStringLiteral("hunter2");
    stage.pasteboard.urls = urls({QStringLiteral("/a/x.pdf")});
    stage.settle();
    QCOMPARE(stage.pasteboard.asked, QStringList{QStringLiteral("types")});
    QVERIFY(stage.clipboard.items().isEmpty() && !stage.stored().contains("hunter2"));
}

void ClipboardModelTest::pictures_data()
{
    QTest::addColumn<EncodedPicture>("picture");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<QString>("text");
    const EncodedPicture plain = png(300, 200);
    const EncodedPicture tiff{encodedImage(300, 200, "tiff"), QString::fromLatin1(Pasteboard::kTiff)};
    QTest::newRow("png") << plain << QString() << "Image 300×200";
    QTest::newRow("tiff") << tiff << QString() << "Image 300×200";
    QTest::newRow("narrow") << png(3, 20'000) << QString() << "Image 3×20000";
    QTest::newRow("text wins") << plain << "beside"
                               << "beside";
    QTest::newRow("damaged") << EncodedPicture{plain.data.left(60), plain.type} << QString() << QString();
    QTest::newRow("no picture") << EncodedPicture{"nonsense", plain.type} << QString() << QString();
    QTest::newRow("decompression bomb") << bomb() << QString() << QString();
}

void ClipboardModelTest::pictures()
{
    QFETCH(const EncodedPicture, picture);
    QFETCH(const QString, beside);
    QFETCH(const QString, text);
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
    QCOMPARE(std::get<EncodedPicture>(stage.pasteboard.written), picture);
}

void ClipboardModelTest::pictureFilesAreShownAndGivenBack()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("photo.jpg"));
    const QByteArray bytes = encodedImage(40, 30, "jpg");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    const QString fifo = folder.filePath(QStringLiteral("pipe.png"));
    QCOMPARE(mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);

    Stage stage;
    stage.userCopies(urls({path, fifo}));
    const ClipboardItem shown = stage.clipboard.items().first();
    QCOMPARE(shown.thumbnail().size(), QSize(40, 30));
    stage.clipboard.copy(shown);
    QCOMPARE(std::get<EncodedPicture>(stage.pasteboard.written),
             (EncodedPicture{bytes, QStringLiteral("image/jpeg")}));

    stage.userCopies(urls({fifo}));
    QVERIFY(stage.clipboard.items().first().thumbnail().isNull());

    NotchSettings settings(stage.defaults);
    ClipboardModel restarted(settings, stage.defaults, stage.clock, stage.pasteboard);
    const ClipboardItem reread = restarted.items().at(1);
    QVERIFY(reread.thumbnail().isNull());
    restarted.copy(reread);
    QCOMPARE(std::get<QList<QUrl>>(stage.pasteboard.written), urls({path, fifo}));
}

void ClipboardModelTest::picturesStayWithinTheirBudget()
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
        pictures += item.kind == ClipboardItem::Kind::image ? 1 : 0;
    }
    QVERIFY(cost <= ClipboardModel::kPictureBudget);
    QCOMPARE(pictures, 4);
    QCOMPARE(stage.texts().last(), QStringLiteral("old text"));
}

void ClipboardModelTest::offMeansUnread()
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
    QCOMPARE(stage.pasteboard.asked.count(QStringLiteral("types")), 1);
}

void ClipboardModelTest::oneReadAtATime()
{
    Stage stage;
    stage.pasteboard.held = true;
    stage.userCopies("slow");
    stage.userCopies("next");
    stage.settle();
    QCOMPARE(stage.pasteboard.asked, QStringList{QStringLiteral("types")});
    stage.pasteboard.release();
    for (int i = 0; i < 3; ++i)
        stage.settle();
    QCOMPARE(stage.texts(), QStringList{QStringLiteral("next")});
}

void ClipboardModelTest::filterAndQuery()
{
    using Filter = ClipboardModel::Filter;
    Stage stage;
    stage.userCopies("Hello World");
    stage.userCopies("https://example.org/hello");
    stage.userCopies(urls({QStringLiteral("/a/hello.pdf")}));
    stage.userCopies(urls({QStringLiteral("/a/hello.txt")}));
    stage.userCopies(png(2, 2));
    const QList<std::pair<Filter, int>> expected{
        {Filter::all, 5}, {Filter::text, 1}, {Filter::links, 1}, {Filter::images, 1}, {Filter::pdfs, 1}};
    for (const auto &[filter, count] : expected) {
        stage.clipboard.setFilter(filter);
        QCOMPARE(stage.texts().size(), count);
    }
    stage.clipboard.setFilter(Filter::all);
    const QList<std::pair<QString, int>> queries{{QStringLiteral(" \t"), 5},
                                                 {QStringLiteral(" HELLO\t"), 4},
                                                 {QStringLiteral("hello\n"), 0},
                                                 {QStringLiteral("o w"), 1}};
    for (const auto &[query, count] : queries) {
        stage.clipboard.setQuery(query);
        QCOMPARE(stage.texts().size(), count);
    }
}

void ClipboardModelTest::copyingBackMovesToTheTop()
{
    Stage stage;
    for (const char *text : {"A", "B", "C"})
        stage.userCopies(text);
    const ClipboardItem oldest = stage.clipboard.items().last();
    stage.clipboard.copy(oldest.idText());
    QCOMPARE(std::get<QString>(stage.pasteboard.written), QStringLiteral("A"));
    QCOMPARE(stage.clipboard.items().first(), oldest);
    const QByteArray stored = stage.stored();
    stage.settle();
    QCOMPARE(stage.texts(), QStringList({QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("B")}));
    QCOMPARE(stage.pasteboard.asked.count(QStringLiteral("types")), 3);
    stage.clipboard.remove(oldest.idText());
    stage.clipboard.remove(QStringLiteral("unknown"));
    QCOMPARE(stage.texts(), QStringList({QStringLiteral("C"), QStringLiteral("B")}));
    QVERIFY(stage.stored() != stored);
    stage.clipboard.clear();
    QCOMPARE(stage.stored(), QByteArray("[]"));
}

void ClipboardModelTest::storedFormat()
{
    Stage stage;
    stage.userCopies(urls({QStringLiteral("/a/ü.pdf"), QStringLiteral("/b/\".pdf")}));
    const auto item = stage.clipboard.items().first();
    const QJsonObject object = QJsonDocument::fromJson(stage.stored()).array().at(0).toObject();
    const QJsonObject expected{
        {QStringLiteral("id"), item.id.toString(QUuid::WithoutBraces).toUpper()},
        {QStringLiteral("kind"), QStringLiteral("pdf")},
        {QStringLiteral("text"), QStringLiteral("ü.pdf, \".pdf")},
        {QStringLiteral("paths"), QJsonArray{QStringLiteral("/a/ü.pdf"), QStringLiteral("/b/\".pdf")}},
        {QStringLiteral("date"), static_cast<double>(item.date.toMSecsSinceEpoch()) / 1000 - 978'307'200},
        {QStringLiteral("image"), QJsonObject()}};
    QCOMPARE(object, expected);
    QCOMPARE(decodeClipboardItems(stage.stored()), stage.clipboard.items());
    QCOMPARE(item.date, stage.clock.now());

    const auto foreign = decodeClipboardItems(
        R"([{"image":7,"more":[],"id":"0a0a0a0a-1111-4222-8333-444444444444","kind":"link","text":"http://a",
             "paths":[],"date":-1.5}])");
    QVERIFY(foreign && foreign->size() == 1);
    QCOMPARE(foreign->first().date, QDateTime(QDate(2000, 12, 31), QTime(23, 59, 58, 500), kUtc));
}

void ClipboardModelTest::damagedStoresAreLeftAlone_data()
{
    const QByteArray good =
        R"([{"id":"0A0A0A0A-1111-4222-8333-444444444444","kind":"text","text":"a","paths":[],"date":1,"image":{}}])";
    QTest::addColumn<DefaultsValue>("value");
    const auto row = [](const char *name, const DefaultsValue &value) { QTest::newRow(name) << value; };
    const auto changed = [&](const char *from, const char *to) { return QByteArray(good).replace(from, to); };
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

void ClipboardModelTest::damagedStoresAreLeftAlone()
{
    QFETCH(const DefaultsValue, value);
    Fakes::Core core;
    core.defaults.values.insert(kKey, value);
    ClipboardModel model(core.settings, core.defaults, core.clock, core.pasteboard);
    QVERIFY(model.items().isEmpty());
    QCOMPARE(core.defaults.values.value(kKey), value);
}

REGISTER_TEST(ClipboardModelTest);
#include "ClipboardModelTest.moc"
