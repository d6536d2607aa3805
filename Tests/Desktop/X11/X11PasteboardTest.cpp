#include "Desktop/X11/X11Pasteboard.h"

#include "Desktop/X11/PasteboardTypes.h"
#include "Desktop/X11/UriLists.h"
#include "EndToEnd/VirtualDisplay.h"
#include "EndToEnd/Waiting.h"
#include "EndToEnd/X11.h"
#include "Support/TestRegistry.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QRandomGenerator>

#include <algorithm>
#include <csignal>

using Kestrune::EncodedPicture;
using Kestrune::Pasteboard;
using Kestrune::X11Pasteboard;
using namespace Qt::StringLiterals;

namespace {

constexpr int kMegabyte = 1024 * 1024;
const QString kText =
    u"Zwölf Boxkämpfer · עברית · العربية · 漢字 · 👩‍👩‍👧‍👦\nnext line\t"_s;

template <typename Answer>
Answer wait(const QFuture<Answer> &future)
{
    if (!waitUntil([&] { return future.isFinished(); }, 20000) || future.resultCount() != 1) {
        qWarning("a question was not answered");
        return {};
    }
    return future.result();
}

QByteArray random(qsizetype size)
{
    QList<quint32> words(size / 4);
    QRandomGenerator(1).fillRange(words.data(), words.size());
    return {reinterpret_cast<const char *>(words.constData()), size};
}

QByteArray png()
{
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setPixel(7, 9, 0xff00ff00);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace

/// The adapter between real programs: each of them copies for it, and pastes what it wrote.
class X11PasteboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void counter();
    void textBothWays_data();
    void textBothWays();
    void picturesBothWays_data();
    void picturesBothWays();
    void fileManager();
    void namesAndForms();
    void secretsAreNotAskedFor_data();
    void secretsAreNotAskedFor();
    void secretsOfAnotherOwner();
    void rogues_data();
    void rogues();
    void nextCopyDoesNotWaitForAHangingOwner();
    void readers();
    void idle();
    void endsWhileAsked();
    void serverDies();

private:
    QStringList types() { return wait(m_pasteboard->types()); }
    QString string() { return wait(m_pasteboard->string()).value_or(QString()); }
    QByteArray picture() { return wait(m_pasteboard->picture()).value_or(EncodedPicture()).data; }
    bool copied(const std::function<bool()> &copy);
    bool start(const QString &program, const QStringList &arguments);
    bool startRogue(const QStringList &arguments);
    bool copy(const QString &client, const QString &type, const QByteArray &bytes);
    QByteArray paste(const QString &client, const QString &type);
    QString file(const QString &name, const QByteArray &bytes);
    static std::pair<QString, QStringList> command(const QString &client, const QStringList &arguments);

    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;
    std::unique_ptr<VirtualDisplay> m_display;
    std::unique_ptr<X11Pasteboard> m_pasteboard;
    std::vector<std::unique_ptr<ChildProcess>> m_programs;
};

void X11PasteboardTest::initTestCase()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_environment = QProcessEnvironment::systemEnvironment();
    for (const auto &name : {u"WAYLAND_DISPLAY"_s, u"DBUS_SESSION_BUS_ADDRESS"_s, u"QT_QPA_PLATFORM"_s})
        m_environment.remove(name);
    for (const auto &name : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s})
        m_environment.insert(name, m_home->path());
    m_environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    m_environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s); // Programs that are killed.
    m_display =
        std::make_unique<VirtualDisplay>(VirtualDisplay::Server::Plain, QSize(800, 600), m_environment);
    QVERIFY(!m_display->name().isEmpty());
    m_environment.insert(u"DISPLAY"_s, m_display->name());
    QVERIFY(m_display->startWindowManager(u"openbox"_s));
}

void X11PasteboardTest::init()
{
    m_pasteboard = std::make_unique<X11Pasteboard>(m_display->name().toLatin1());
    types(); // Answered once it watches.
}

void X11PasteboardTest::cleanup()
{
    m_pasteboard.reset();
    m_programs.clear();
}

bool X11PasteboardTest::copied(const std::function<bool()> &copy)
{
    const qint64 before = m_pasteboard->changeCount();
    return copy() && waitUntil([&] { return m_pasteboard->changeCount() > before; });
}

bool X11PasteboardTest::start(const QString &program, const QStringList &arguments)
{
    m_programs.push_back(std::make_unique<ChildProcess>(m_environment));
    return m_programs.back()->launch(program, arguments);
}

bool X11PasteboardTest::startRogue(const QStringList &arguments)
{
    return copied(
        [&] { return start(QCoreApplication::applicationDirPath() + u"/RogueOwner"_s, arguments); });
}

std::pair<QString, QStringList> X11PasteboardTest::command(const QString &client,
                                                           const QStringList &arguments)
{
    if (client == "qt"_L1)
        return {QCoreApplication::applicationDirPath() + u"/QtClient"_s, arguments};
    if (client == "gtk"_L1)
        return {u"/usr/bin/python3"_s, QStringList{QStringLiteral(KESTRUNE_GTK_CLIENT)} + arguments};
    const QString type = arguments.at(1) == "text/plain"_L1 ? u"UTF8_STRING"_s : arguments.at(1);
    const QStringList clip{u"-selection"_s, u"clipboard"_s, u"-t"_s, type};
    return {u"xclip"_s, arguments.at(0) == "copy"_L1
                            ? clip + QStringList{u"-quiet"_s, u"-i"_s, arguments.at(2)}
                            : clip + QStringList{u"-o"_s}};
}

QString X11PasteboardTest::file(const QString &name, const QByteArray &bytes)
{
    QFile file(m_home->filePath(name));
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

bool X11PasteboardTest::copy(const QString &client, const QString &type, const QByteArray &bytes)
{
    const auto [program, arguments] = command(client, {u"copy"_s, type, file(u"copied"_s, bytes)});
    return copied([&, program = program, arguments = arguments] { return start(program, arguments); });
}

QByteArray X11PasteboardTest::paste(const QString &client, const QString &type)
{
    const auto [program, arguments] = command(client, {u"paste"_s, type});
    ChildProcess process(m_environment);
    if (!process.launch(program, arguments) || !process.waitForFinished(20000))
        return {};
    return process.readAllStandardOutput();
}

void X11PasteboardTest::counter()
{
    QVERIFY(startRogue({u"honest"_s, u"UTF8_STRING"_s}));
    QCOMPARE(m_pasteboard->changeCount(), 1);
    m_programs.back()->write("again\n");
    QTRY_COMPARE(m_pasteboard->changeCount(), 2);
    {
        X11Pasteboard second(m_display->name().toLatin1());
        QCOMPARE(wait(second.types()), QStringList{u"text/plain"_s});
        QCOMPARE(second.changeCount(), 0);
    }
    QCOMPARE(m_pasteboard->write(kText), 3);
    QCOMPARE(m_pasteboard->write(kText), 4);
    QCOMPARE(types(), QStringList{u"text/plain"_s});
    QCOMPARE(string(), kText);
    QCOMPARE(m_pasteboard->changeCount(), 4);
    m_programs.back()->write("again\n");
    QTRY_COMPARE(m_pasteboard->changeCount(), 5);
    m_programs.back()->killNow();
    QTRY_COMPARE(types(), QStringList());
    QCOMPARE(m_pasteboard->changeCount(), 5);
}

void X11PasteboardTest::textBothWays_data()
{
    QTest::addColumn<QString>("client");
    QTest::addColumn<QString>("text");
    for (const auto &client : {u"xclip"_s, u"qt"_s, u"gtk"_s}) {
        QTest::addRow("%s, every script", qPrintable(client)) << client << kText;
        QTest::addRow("%s, eight megabytes", qPrintable(client)) << client << QString(8 * kMegabyte, u'x');
    }
}

void X11PasteboardTest::textBothWays()
{
    QFETCH(QString, client);
    QFETCH(QString, text);
    QVERIFY(copy(client, u"text/plain"_s, text.toUtf8()));
    QVERIFY(types().contains(u"text/plain"_s));
    QCOMPARE(string() == text, true);
    QCOMPARE(picture(), QByteArray());
    m_pasteboard->write(text);
    QCOMPARE(paste(client, u"text/plain"_s) == text.toUtf8(), true);
}

void X11PasteboardTest::picturesBothWays_data()
{
    QTest::addColumn<QString>("client");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("xclip") << u"xclip"_s << u"image/png"_s << png();
    QTest::newRow("xclip, twenty megabytes") << u"xclip"_s << u"image/tiff"_s << random(20 * kMegabyte);
    QTest::newRow("Qt, twenty megabytes") << u"qt"_s << u"image/png"_s << random(20 * kMegabyte);
    QTest::newRow("GTK") << u"gtk"_s << u"image/png"_s << png();
}

void X11PasteboardTest::picturesBothWays()
{
    QFETCH(QString, client);
    QFETCH(QString, type);
    QFETCH(QByteArray, bytes);
    QVERIFY(copy(client, type, bytes));
    QVERIFY(types().contains(type));
    const EncodedPicture got = wait(m_pasteboard->picture()).value_or(EncodedPicture());
    QCOMPARE(got.type, type);
    if (client == "gtk"_L1) // Encodes the picture anew.
        QCOMPARE(QImage::fromData(got.data), QImage::fromData(bytes));
    else
        QCOMPARE(got.data == bytes, true);
    QCOMPARE(string(), QString());
    m_pasteboard->write(EncodedPicture{bytes, type});
    QCOMPARE(paste(client, type) == bytes, true);
}

void X11PasteboardTest::fileManager()
{
    QDir home(m_home->path());
    QVERIFY(home.mkpath(u"from"_s) && home.mkpath(u"to"_s));
    const QList<QUrl> urls{QUrl::fromLocalFile(file(u"from/Über #1 100%.txt"_s, "content"))};
    const auto keys = [&](const QString &folder, const QStringList &typed) {
        ChildProcess search(m_environment);
        search.launch(u"xdotool"_s,
                      QStringList{u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--name"_s, folder,
                                  u"windowfocus"_s, u"--sync"_s, u"key"_s, u"--delay"_s, u"100"_s} +
                          typed);
        return search.waitForFinished(20000);
    };
    QVERIFY(start(u"pcmanfm"_s, {home.filePath(u"from"_s)}));
    QVERIFY(copied([&] { return keys(u"^from$"_s, {u"ctrl+a"_s, u"ctrl+c"_s}); }));
    QVERIFY(types().contains(u"text/uri-list"_s));
    QCOMPARE(wait(m_pasteboard->fileUrls()), urls);

    m_pasteboard->write(urls);
    QCOMPARE(paste(u"xclip"_s, u"text/plain"_s), urls[0].toLocalFile().toUtf8());
    QCOMPARE(paste(u"gtk"_s, u"text/uri-list"_s), urls[0].toEncoded() + "\r\n");
    m_programs.clear();
    QVERIFY(start(u"pcmanfm"_s, {home.filePath(u"to"_s)}));
    QVERIFY(keys(u"^to$"_s, {u"ctrl+v"_s}));
    QTRY_VERIFY(QFile::exists(home.filePath(u"to/Über #1 100%.txt"_s)));
    QVERIFY(QFile::exists(urls[0].toLocalFile()));
}

void X11PasteboardTest::namesAndForms()
{
    using namespace Kestrune;
    QCOMPARE(PasteboardTypes::named({"TARGETS", "STRING", "x-special/gnome-copied-files", "COMPOUND_TEXT",
                                     "text/uri-list", "org.nspasteboard.TransientType", "image/tiff",
                                     "text/html"}),
             (QStringList{u"text/plain"_s, u"text/uri-list"_s, u"org.nspasteboard.TransientType"_s,
                          u"image/tiff"_s, u"text/html"_s}));
    const QByteArray latin1("\xfc"
                            "ber\0\0",
                            6);
    QCOMPARE(PasteboardTypes::text(latin1, "STRING"), u"über"_s);
    QCOMPARE(PasteboardTypes::text(latin1, "text/plain"), u"über"_s);
    QCOMPARE(PasteboardTypes::text(latin1, "UTF8_STRING"), u"\ufffdber"_s);
    QCOMPARE(PasteboardTypes::text(latin1, "COMPOUND_TEXT"), std::nullopt);
    const auto latin1Form = [](const QString &text) {
        const auto forms = PasteboardTypes::forms(text);
        return std::ranges::find(forms, "STRING", &PasteboardTypes::Form::target) != forms.end();
    };
    QVERIFY(latin1Form(u"über"_s) && !latin1Form(kText));

    const QByteArray lines = "# a comment\r\nfile:///a%20b\r\nhttp://example.org/c\r\nfile://localhost/d\n"
                             "file://elsewhere.example/e\r\nfile:///%C3%BC";
    const QList<QUrl> files{QUrl::fromLocalFile(u"/a b"_s), QUrl::fromLocalFile(u"/d"_s),
                            QUrl::fromLocalFile(u"/ü"_s)};
    QCOMPARE(UriLists::localFiles(lines, "text/uri-list"), files);
    QCOMPARE(UriLists::localFiles("cut\n" + lines, UriLists::kCopiedFiles), files);
    QCOMPARE(UriLists::copiedFiles(files), "copy\nfile:///a%20b\nfile:///d\nfile:///%C3%BC"_qba);
}

void X11PasteboardTest::secretsAreNotAskedFor_data()
{
    QTest::addColumn<QString>("marker");
    QTest::addColumn<QString>("named");
    QTest::newRow("hint") << u"x-kde-passwordManagerHint"_s << u"org.nspasteboard.ConcealedType"_s;
    for (const auto *type : {"Concealed", "Transient", "AutoGenerated"}) {
        const QString name = u"org.nspasteboard.%1Type"_s.arg(QLatin1String(type));
        QTest::newRow(type) << name << name;
    }
}

void X11PasteboardTest::secretsAreNotAskedFor()
{
    QFETCH(QString, marker);
    QFETCH(QString, named);
    QVERIFY(startRogue({u"honest"_s, u"UTF8_STRING"_s, marker}));
    QCOMPARE(types(), QStringList({u"text/plain"_s, named}));
    QTest::qWait(100);
    QCOMPARE(m_programs.back()->readAllStandardOutput(), "ready\nTARGETS\n"_qba);
}

void X11PasteboardTest::secretsOfAnotherOwner()
{
    QVERIFY(startRogue({u"swap"_s, u"UTF8_STRING"_s}));
    int read = 0;
    for (int round = 0; round < 2000; ++round) {
        const auto seen = m_pasteboard->types();
        const auto text = m_pasteboard->string(); // Asked at once, as a reader would that trusts the types.
        const bool secret = wait(seen).contains(QLatin1String(Pasteboard::kConcealed));
        const auto answer = wait(text);
        QVERIFY2(secret || answer != u"secret"_s, qPrintable(u"round %1"_s.arg(round)));
        read += !secret && answer == u"public"_s ? 1 : 0;
    }
    qInfo("%d of 2000 texts were read between the changes", read);
    QVERIFY(read > 0);
}

void X11PasteboardTest::rogues_data()
{
    QTest::addColumn<int>("limit");
    QTest::newRow("hangAtTypes") << 3000;
    QTest::newRow("hangHalfWay") << 3000;
    QTest::newRow("dieHalfWay") << 1000;
    QTest::newRow("huge") << 1000;
    QTest::newRow("hugeUnannounced") << 8000;
    QTest::newRow("hugeAtOnce") << 8000;
    QTest::newRow("typesAsText") << 1000;
    QTest::newRow("wrongType") << 1000;
    QTest::newRow("wrongFormat") << 1000;
    QTest::newRow("drip") << 16000;
}

void X11PasteboardTest::rogues()
{
    QFETCH(int, limit);
    QVERIFY(startRogue({QString::fromLatin1(QTest::currentDataTag()), u"UTF8_STRING"_s, u"image/png"_s}));
    QElapsedTimer tick;
    qint64 longest = 0;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] { longest = std::max(longest, tick.restart()); });
    poll.start(1000 / 30);
    tick.start();
    const auto seen = m_pasteboard->types();
    const auto bitmap = m_pasteboard->picture();
    const qint64 time = timeUntil([&] { return bitmap.isFinished(); }, limit + 5000);
    QVERIFY2(time >= 0 && time < limit, qPrintable(QString::number(time)));
    QCOMPARE(wait(bitmap), std::nullopt);
    qInfo("empty after %lld ms; longest gap between two ticks of 33 ms: %lld ms", time, longest);
    QVERIFY(longest < 330);
    // The next copy is read as if nothing had been.
    QVERIFY(copy(u"xclip"_s, u"text/plain"_s, kText.toUtf8()));
    QVERIFY(!types().isEmpty());
    QCOMPARE(string(), kText);
}

void X11PasteboardTest::nextCopyDoesNotWaitForAHangingOwner()
{
    QVERIFY(startRogue({u"hangHalfWay"_s, u"image/png"_s}));
    types();
    const auto hanging = m_pasteboard->picture();
    QTest::qWait(300);
    QVERIFY(copy(u"xclip"_s, u"text/plain"_s, kText.toUtf8()));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!types().isEmpty());
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(string(), kText);
    QCOMPARE(wait(hanging), std::nullopt);
}

void X11PasteboardTest::readers()
{
    const X11 x(m_display->name());
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
    m_pasteboard->write(u"text"_s);
    types();
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
    m_pasteboard->write(EncodedPicture{bytes, u"image/png"_s});
    types();
    QCOMPARE(convert("image/png", "PICTURE", XCB_CURRENT_TIME), x.atom("PICTURE"));
    QCOMPARE(x.property(window, "PICTURE"), QList<quint32>{quint32(bytes.size())});
    QCOMPARE(paste(u"qt"_s, u"image/png"_s) == bytes, true);
    QCOMPARE(picture() == bytes, true); // Its own content takes the same way.
}

void X11PasteboardTest::idle()
{
    const auto wakeUps = [] {
        const QDir tasks(u"/proc/self/task"_s);
        for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile name(tasks.filePath(task + u"/comm"_s));
            QFile status(tasks.filePath(task + u"/status"_s));
            if (!name.open(QFile::ReadOnly) || name.readAll() != "pasteboard\n" ||
                !status.open(QFile::ReadOnly))
                continue;
            const QByteArray text = status.readAll();
            const auto at = text.indexOf("\nvoluntary_ctxt_switches:");
            return text.mid(at + 25, text.indexOf('\n', at + 1) - at - 25).trimmed().toLongLong();
        }
        return qint64{-1};
    };
    QVERIFY(startRogue({u"hangHalfWay"_s, u"image/png"_s}));
    types();
    picture();
    m_pasteboard->write(EncodedPicture{random(kMegabyte), u"image/png"_s});
    paste(u"qt"_s, u"image/png"_s);
    QTest::qWait(500);
    const qint64 before = wakeUps();
    QVERIFY(before > 0);
    QTest::qWait(2000);
    QCOMPARE(wakeUps(), before);
}

void X11PasteboardTest::endsWhileAsked()
{
    QVERIFY(startRogue({u"hangAtTypes"_s}));
    const auto first = m_pasteboard->types();
    const auto second = m_pasteboard->string();
    QTest::qWait(100);
    QVERIFY(!first.isFinished());
    QElapsedTimer timer;
    timer.start();
    m_pasteboard.reset();
    QVERIFY(timer.elapsed() < 500);
    QCOMPARE(wait(first), QStringList());
    QCOMPARE(wait(second), std::nullopt);
}

void X11PasteboardTest::serverDies()
{
    auto display =
        std::make_unique<VirtualDisplay>(VirtualDisplay::Server::Plain, QSize(100, 100), m_environment);
    X11Pasteboard pasteboard(display->name().toLatin1());
    pasteboard.write(kText);
    QCOMPARE(wait(pasteboard.types()), QStringList{u"text/plain"_s});
    display.reset();
    QCOMPARE(wait(pasteboard.string()), std::nullopt);
    QCOMPARE(pasteboard.write(kText), 2);
    QCOMPARE(wait(pasteboard.types()), QStringList());
}

REGISTER_TEST(X11PasteboardTest);

#include "X11PasteboardTest.moc"
