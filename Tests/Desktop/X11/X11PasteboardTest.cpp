#include "Desktop/X11/ClipboardStage.h"
#include "Desktop/X11/PasteboardTypes.h"
#include "Desktop/X11/UriLists.h"
#include "EndToEnd/X11.h"
#include "Support/TestRegistry.h"

#include <QRandomGenerator>

namespace {

constexpr int kMegabyte = 1024 * 1024;
const QString kText =
    u"Zwölf Boxkämpfer · עברית · العربية · 漢字 · 👩‍👩‍👧‍👦\nnext line\t"_s;

QByteArray random(qsizetype size)
{
    QList<quint32> words(size / 4);
    QRandomGenerator(1).fillRange(words.data(), words.size());
    return {reinterpret_cast<const char *>(words.constData()), size};
}

QByteArray png()
{
    QImage image = plainImage({300, 200}, Qt::red);
    image.setPixel(7, 9, 0xff00ff00);
    return encoded(image);
}

} // namespace

/// The adapter between real programs: each of them copies for it, and pastes what it wrote.
class X11PasteboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<ClipboardStage>(); }
    void init() { m_stage->reset(); }

    void counter()
    {
        QVERIFY(m_stage->startRogue({u"honest"_s, u"UTF8_STRING"_s}));
        QCOMPARE(m_stage->pasteboard->changeCount(), 1);
        m_stage->programs.back()->write("again\n");
        QTRY_COMPARE(m_stage->pasteboard->changeCount(), 2);
        {
            X11Pasteboard second(m_stage->display->name().toLatin1());
            QCOMPARE(wait(second.types()), QStringList{u"text/plain"_s});
            QCOMPARE(second.changeCount(), 0);
        }
        QCOMPARE(m_stage->pasteboard->write(kText), 3);
        QCOMPARE(m_stage->pasteboard->write(kText), 4);
        QCOMPARE(types(), QStringList{u"text/plain"_s});
        QCOMPARE(string(), kText);
        QCOMPARE(m_stage->pasteboard->changeCount(), 4);
        m_stage->programs.back()->write("again\n");
        QTRY_COMPARE(m_stage->pasteboard->changeCount(), 5);
        m_stage->programs.back()->killNow();
        QTRY_COMPARE(types(), QStringList());
        QCOMPARE(m_stage->pasteboard->changeCount(), 5);
    }

    void bothWays_data()
    {
        columns<QString, QString, QByteArray>();
        for (const auto &client : {u"xclip"_s, u"qt"_s, u"gtk"_s}) {
            const auto row = [&](const char *what, const QString &type, const QByteArray &bytes) {
                QTest::addRow("%s, %s", qPrintable(client), what) << client << type << bytes;
            };
            row("every script", u"text/plain"_s, kText.toUtf8());
            row("eight megabytes of text", u"text/plain"_s, QByteArray(8 * kMegabyte, 'x'));
            row("a picture", u"image/png"_s, png());
            if (client != "gtk"_L1) // It accepts only what it can decode.
                row("twenty megabytes of picture", u"image/tiff"_s, random(20 * kMegabyte));
        }
    }

    void bothWays()
    {
        auto [client, type, bytes] = fetched<QString, QString, QByteArray>();
        const bool isText = type == "text/plain"_L1;
        QVERIFY(m_stage->copy(client, type, bytes));
        QVERIFY(types().contains(type));
        const EncodedPicture got = wait(m_stage->pasteboard->picture()).value_or(EncodedPicture());
        QCOMPARE(got.type, isText ? QString() : type);
        if (isText)
            QVERIFY(string().toUtf8() == bytes);
        else if (client == "gtk"_L1) // Encodes the picture anew.
            QCOMPARE(QImage::fromData(got.data), QImage::fromData(bytes));
        else
            QVERIFY(got.data == bytes && string().isEmpty());
        m_stage->write(isText ? PasteboardContent(QString::fromUtf8(bytes))
                              : PasteboardContent(EncodedPicture{bytes, type}));
        m_stage->programs.clear(); // Nobody else can answer.
        QVERIFY(m_stage->paste(client, type) == bytes);
    }

    void namesAndForms()
    {
        QCOMPARE(PasteboardTypes::named({"TARGETS", "STRING", "x-special/gnome-copied-files", "COMPOUND_TEXT",
                                         "text/uri-list", "org.nspasteboard.TransientType", "image/tiff",
                                         "text/html"}),
                 (QStringList{u"text/plain"_s, u"text/uri-list"_s, u"org.nspasteboard.TransientType"_s,
                              u"image/tiff"_s, u"text/html"_s}));
        const QByteArray latin1 = QByteArray::fromHex("fc6265720000"); // "über" and two terminators
        QCOMPARE(PasteboardTypes::text(latin1, "STRING"), u"über"_s);
        QCOMPARE(PasteboardTypes::text(latin1, "text/plain"), u"über"_s);
        QCOMPARE(PasteboardTypes::text(latin1, "UTF8_STRING"), u"\ufffdber"_s);
        QCOMPARE(PasteboardTypes::text(latin1, "COMPOUND_TEXT"), std::nullopt);
        const auto latin1Form = [](const QString &text) {
            const auto forms = PasteboardTypes::forms(text);
            return std::ranges::find(forms, "STRING", &PasteboardTypes::Form::target) != forms.end();
        };
        QVERIFY(latin1Form(u"über"_s) && !latin1Form(kText));

        const QByteArray lines =
            "# a comment\r\nfile:///a%20b\r\nhttp://example.org/c\r\nfile://localhost/d\n"
            "file://elsewhere.example/e\r\nfile:///%C3%BC";
        const QList<QUrl> files{QUrl::fromLocalFile(u"/a b"_s), QUrl::fromLocalFile(u"/d"_s),
                                QUrl::fromLocalFile(u"/ü"_s)};
        QCOMPARE(UriLists::localFiles(lines, "text/uri-list"), files);
        QCOMPARE(UriLists::localFiles("cut\n" + lines, UriLists::kCopiedFiles), files);
        QCOMPARE(UriLists::copiedFiles(files), "copy\nfile:///a%20b\nfile:///d\nfile:///%C3%BC"_ba);
    }

    void secretsAreNotAskedFor_data()
    {
        columns<QString, QString>();
        QTest::newRow("hint") << u"x-kde-passwordManagerHint"_s << u"org.nspasteboard.ConcealedType"_s;
        for (const auto *type : {"Concealed", "Transient", "AutoGenerated"}) {
            const QString name = u"org.nspasteboard.%1Type"_s.arg(QLatin1String(type));
            QTest::newRow(type) << name << name;
        }
    }

    void secretsAreNotAskedFor()
    {
        auto [marker, named] = fetched<QString, QString>();
        QVERIFY(m_stage->startRogue({u"honest"_s, u"UTF8_STRING"_s, marker}));
        QCOMPARE(types(), QStringList({u"text/plain"_s, named}));
        QTest::qWait(100);
        QCOMPARE(m_stage->programs.back()->readAllStandardOutput(), "ready\nTARGETS\n"_ba);
    }

    void secretsOfAnotherOwner()
    {
        QVERIFY(m_stage->startRogue({u"swap"_s, u"UTF8_STRING"_s}));
        int read = 0;
        for (int round = 0; round < 2000; ++round) {
            const auto seen = m_stage->pasteboard->types();
            // Asked at once, as a reader would that trusts the types.
            const auto text = m_stage->pasteboard->string();
            const bool secret = wait(seen).contains(QLatin1String(Pasteboard::kConcealed));
            const auto answer = wait(text);
            QVERIFY2(secret || answer != u"secret"_s, qPrintable(u"round %1"_s.arg(round)));
            read += !secret && answer == u"public"_s ? 1 : 0;
        }
        qInfo("%d of 2000 texts were read between the changes", read);
        QVERIFY(read > 0);
    }

    void rogues_data()
    {
        QTest::addColumn<bool>("silent"); // for the two seconds after which it is given up
        for (const char *owner : {"hangAtTypes", "hangHalfWay", "dieHalfWay", "huge", "hugeUnannounced",
                                  "hugeAtOnce", "typesAsText", "wrongType", "wrongFormat", "drip"})
            QTest::newRow(owner) << (owner == "hangAtTypes"_ba || owner == "hangHalfWay"_ba);
    }

    void rogues()
    {
        QFETCH(bool, silent);
        QVERIFY(m_stage->startRogue(
            {QString::fromLatin1(QTest::currentDataTag()), u"UTF8_STRING"_s, u"image/png"_s}));
        QElapsedTimer tick;
        qint64 longest = 0;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] { longest = std::max(longest, tick.restart()); });
        poll.setTimerType(Qt::PreciseTimer);
        poll.start(1000 / 30);
        tick.start();
        const auto seen = m_stage->pasteboard->types();
        const auto bitmap = m_stage->pasteboard->picture();
        const qint64 time = timeUntil([&] { return bitmap.isFinished(); });
        QVERIFY2(time >= (silent ? 1900 : 0), qPrintable(QString::number(time)));
        QCOMPARE(wait(bitmap), std::nullopt);
        qInfo("empty after %lld ms; longest gap between two ticks of 33 ms: %lld ms", time, longest);
        QVERIFY2(longest < 1900, "the main thread waited for the owner");
        // The next copy is read as if nothing had been.
        QVERIFY(m_stage->copy(u"xclip"_s, u"text/plain"_s, kText.toUtf8()));
        QVERIFY(!types().isEmpty());
        QCOMPARE(string(), kText);
    }

    void nextCopyDoesNotWaitForAHangingOwner()
    {
        QVERIFY(m_stage->startRogue({u"hangHalfWay"_s, u"image/png"_s}));
        types();
        const auto hanging = m_stage->pasteboard->picture();
        QTest::qWait(300);
        QVERIFY(m_stage->copy(u"xclip"_s, u"text/plain"_s, kText.toUtf8()));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!types().isEmpty());
        QVERIFY2(timer.elapsed() < 1900, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(string(), kText);
        QCOMPARE(wait(hanging), std::nullopt);
    }

    void refusedContentStaysWithItsOwner()
    {
        // xclip ends with an error when it writes to a window that is gone, and hears nobody else before its
        // reader has taken everything.
        const QByteArray bytes = random(70 * kMegabyte);
        QVERIFY(m_stage->copy(u"xclip"_s, u"image/png"_s, bytes));
        QCOMPARE(types(), QStringList{u"image/png"_s});
        QCOMPARE(picture(), QByteArray());
        QTest::qWait(1000);
        QVERIFY(m_stage->paste(u"xclip"_s, u"image/png"_s) == bytes);
    }

    void readers()
    {
        const X11 x(m_stage->display->name());
        const xcb_window_t window = xcb_generate_id(x.connection());
        const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(x.connection(), 0, window, x.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          x.screen()->root_visual, XCB_CW_EVENT_MASK, &events);
        /// The property that the owner answered in, or none.
        const auto convert = [&](const char *target, const char *property, xcb_timestamp_t time) {
            xcb_convert_selection(x.connection(), window, x.atom("CLIPBOARD"), x.atom(target),
                                  property ? x.atom(property) : xcb_atom_t{XCB_ATOM_NONE}, time);
            xcb_flush(x.connection());
            xcb_atom_t answer = XCB_ATOM_NONE;
            const bool answered = waitUntil([&] {
                auto *event = xcb_poll_for_event(x.connection());
                const bool notified = event && (event->response_type & 0x7f) == XCB_SELECTION_NOTIFY;
                if (notified)
                    answer = reinterpret_cast<xcb_selection_notify_event_t *>(event)->property;
                std::free(event);
                return notified;
            });
            return answered ? answer : ~xcb_atom_t{0};
        };
        m_stage->write(u"text"_s);
        QCOMPARE(convert("UTF8_STRING", nullptr, XCB_CURRENT_TIME), x.atom("UTF8_STRING"));
        QCOMPARE(convert("TIMESTAMP", "TIME", XCB_CURRENT_TIME), x.atom("TIME"));
        const quint32 since = x.property(window, "TIME").value(0);
        QCOMPARE(convert("UTF8_STRING", "TEXT", since), x.atom("TEXT"));
        QCOMPARE(convert("UTF8_STRING", "TEXT", since - 1), xcb_atom_t{XCB_ATOM_NONE});
        QCOMPARE(convert("image/png", "TEXT", since), xcb_atom_t{XCB_ATOM_NONE});
        x.setProperty(window, "PAIRS", x.atom("ATOM_PAIR"),
                      {x.atom("STRING"), x.atom("FIRST"), x.atom("image/png"), x.atom("SECOND")});
        QCOMPARE(convert("MULTIPLE", "PAIRS", since), x.atom("PAIRS"));
        QCOMPARE(x.property(window, "PAIRS"),
                 (QList<quint32>{x.atom("STRING"), x.atom("FIRST"), 0, x.atom("SECOND")}));

        // One that never takes its pieces leaves the others alone.
        const QByteArray bytes = random(20 * kMegabyte);
        m_stage->write(EncodedPicture{bytes, u"image/png"_s});
        QCOMPARE(convert("image/png", "PICTURE", XCB_CURRENT_TIME), x.atom("PICTURE"));
        QCOMPARE(x.property(window, "PICTURE"), QList<quint32>{quint32(bytes.size())});
        QVERIFY(m_stage->paste(u"qt"_s, u"image/png"_s) == bytes);
        QVERIFY(picture() == bytes); // Its own content takes the same way.
    }

    void idle()
    {
        const auto wakeUps = [] {
            const QDir tasks(u"/proc/self/task"_s);
            for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
                const QByteArray status = readFile(tasks.filePath(task + u"/status"_s));
                if (status.startsWith("Name:\tpasteboard\n"))
                    return status.mid(status.indexOf("\nvoluntary_ctxt_switches:") + 25)
                        .split('\n')[0]
                        .toLongLong();
            }
            return qint64{-1};
        };
        QVERIFY(m_stage->startRogue({u"hangHalfWay"_s, u"image/png"_s}));
        types();
        picture();
        m_stage->write(EncodedPicture{random(kMegabyte), u"image/png"_s});
        m_stage->paste(u"qt"_s, u"image/png"_s);
        QTest::qWait(500);
        const qint64 before = wakeUps();
        QTest::qWait(2000);
        QVERIFY(before > 0 && wakeUps() == before);
    }

    void endsWhileAsked()
    {
        QVERIFY(m_stage->startRogue({u"hangAtTypes"_s}));
        const auto first = m_stage->pasteboard->types();
        const auto second = m_stage->pasteboard->string();
        QTest::qWait(100);
        QVERIFY(!first.isFinished());
        QElapsedTimer timer;
        timer.start();
        m_stage->pasteboard.reset();
        QVERIFY2(timer.elapsed() < 1900, "it waited for the owner");
        QCOMPARE(wait(first), QStringList());
        QCOMPARE(wait(second), std::nullopt);
    }

    void serverDies()
    {
        auto display = std::make_unique<VirtualDisplay>(VirtualDisplay::Server::Plain, QSize(100, 100),
                                                        m_stage->environment);
        X11Pasteboard pasteboard(display->name().toLatin1());
        pasteboard.write(kText);
        QCOMPARE(wait(pasteboard.types()), QStringList{u"text/plain"_s});
        display.reset();
        QCOMPARE(wait(pasteboard.string()), std::nullopt);
        QCOMPARE(pasteboard.write(kText), 2);
        QCOMPARE(wait(pasteboard.types()), QStringList());
    }

    void fileManager(); // The last, since a window manager then keeps the server busy.

private:
    QStringList types() { return wait(m_stage->pasteboard->types()); }
    QString string() { return wait(m_stage->pasteboard->string()).value_or(QString()); }
    QByteArray picture() { return wait(m_stage->pasteboard->picture()).value_or(EncodedPicture()).data; }

    std::unique_ptr<ClipboardStage> m_stage;
};

void X11PasteboardTest::fileManager()
{
    QVERIFY(m_stage->display->startWindowManager(u"openbox"_s));
    QVERIFY(QDir().mkpath(m_stage->path(u"from"_s)) && QDir().mkpath(m_stage->path(u"to"_s)));
    const QList<QUrl> urls{QUrl::fromLocalFile(m_stage->file(u"from/Über #1 100%.txt"_s, "content"))};
    QVERIFY(m_stage->start(u"pcmanfm"_s, {m_stage->path(u"from"_s)}));
    // Its window comes up before the files in it.
    const auto copyAll = [&] { return m_stage->type(u"^from$"_s, {u"ctrl+a"_s, u"ctrl+c"_s}); };
    QTRY_VERIFY_WITH_TIMEOUT(m_stage->copied(copyAll, 3000), 120000);
    QVERIFY(types().contains(u"text/uri-list"_s));
    QCOMPARE(wait(m_stage->pasteboard->fileUrls()), urls);

    m_stage->write(urls);
    QCOMPARE(m_stage->paste(u"xclip"_s, u"text/plain"_s), urls[0].toLocalFile().toUtf8());
    QCOMPARE(m_stage->paste(u"gtk"_s, u"text/uri-list"_s), urls[0].toEncoded() + "\r\n");
    m_stage->programs.clear();
    QVERIFY(m_stage->start(u"pcmanfm"_s, {m_stage->path(u"to"_s)}));
    const auto pasted = [&] { return QFile::exists(m_stage->path(u"to/Über #1 100%.txt"_s)); };
    const auto paste = [&] { return m_stage->type(u"^to$"_s, {u"ctrl+v"_s}) && waitUntil(pasted, 2000); };
    QTRY_VERIFY_WITH_TIMEOUT(paste(), 120000);
    QVERIFY(QFile::exists(urls[0].toLocalFile()));
}

REGISTER_TEST(X11PasteboardTest);

#include "X11PasteboardTest.moc"
