#include "Desktop/DataControl/CompositorStage.h"

#include <QLocalServer>

#include <csignal>

/// The adapter in a session without a screen, between programs that copy for it and paste what it wrote.
class DataControlPasteboardTest : public PasteboardTest<CompositorStage>
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<CompositorStage>(); }
    void init() { m_stage->reset(); }
    void cleanupTestCase() { m_stage.reset(); }

    void isThere()
    {
        QVERIFY(DataControlPasteboard::isThere(m_stage->compositor.display()));
        qputenv("WAYLAND_DISPLAY", m_stage->compositor.display());
        QVERIFY(DataControlPasteboard::isThere());
        qunsetenv("WAYLAND_DISPLAY");
        QVERIFY(!DataControlPasteboard::isThere());
        QVERIFY(!DataControlPasteboard::isThere("/nowhere/wayland-0"));
        QVERIFY(!DataControlPasteboard::isThere(QByteArray(200, 'x')));
    }

    void counter()
    {
        QVERIFY(m_stage->startRogue({u"honest"_s, u"UTF8_STRING"_s}));
        QCOMPARE(m_stage->pasteboard->changeCount(), 1);
        m_stage->programs.back()->write("again\n");
        QTRY_COMPARE(m_stage->pasteboard->changeCount(), 2);
        {
            DataControlPasteboard second(m_stage->compositor.display());
            QCOMPARE(wait(second.types()), QStringList{u"text/plain"_s});
            QCOMPARE(second.changeCount(), 0);
            QCOMPARE(second.write(u"of another"_s), 1);
            QTRY_COMPARE(m_stage->pasteboard->changeCount(), 3);
            QCOMPARE(types(), QStringList{u"text/plain"_s});
            QCOMPARE(string(), u"of another"_s);
        }
        QTRY_COMPARE(types(), QStringList());
        QCOMPARE(m_stage->pasteboard->changeCount(), 3);
        countsOn(3);
    }

    void bothWays_data()
    {
        const auto row = columns<QString, QByteArray>();
        row("every script", "text/plain", kText.toUtf8());
        row("eight megabytes of text", "text/plain", QByteArray(8 * kMegabyte, 'x'));
        row("a picture", "image/png", encoded(plainImage({300, 200}, Qt::red)));
        row("twenty megabytes of picture", "image/tiff", random(20 * kMegabyte));
        row("nothing", "text/plain", "");
    }

    void bothWays()
    {
        const auto [type, bytes] = fetched<QString, QByteArray>();
        exchange(type, bytes);
    }

    void everyForm() { givesEveryForm(); }

    void files()
    {
        const QList<QUrl> urls = fileUrls({u"/tmp/Über #1 100%.txt"_s, u"/tmp/b"_s});
        const QByteArray list = urls[0].toEncoded() + "\r\n" + urls[1].toEncoded() + "\r\n";
        const QByteArray managers = "copy\n" + urls[0].toEncoded() + '\n' + urls[1].toEncoded();
        for (const auto &[type, bytes] :
             {std::pair{u"text/uri-list"_s, list}, std::pair{u"x-special/gnome-copied-files"_s, managers}}) {
            QVERIFY(m_stage->copy(type, bytes) && types().contains(u"text/uri-list"_s));
            QCOMPARE(wait(m_stage->pasteboard->fileUrls()), urls);
            m_stage->write(urls);
            QCOMPARE(m_stage->paste(type), bytes);
        }
        QCOMPARE(m_stage->paste(u"text/plain;charset=utf-8"_s), "/tmp/Über #1 100%.txt\n/tmp/b"_ba);
    }

    void readsOnlyWhatWasSeen()
    {
        QVERIFY(m_stage->startRogue({u"honest"_s, u"STRING"_s})); // In no encoding that anybody names.
        QCOMPARE(string(), QString());
        QCOMPARE(types(), QStringList{u"text/plain"_s});
        QCOMPARE(string(), u"public"_s);
        QVERIFY(m_stage->startRogue({u"honest"_s, u"UTF8_STRING"_s}));
        QCOMPARE(string(), QString());
        QCOMPARE(picture(), QByteArray());
        QCOMPARE(m_stage->programs.back()->readAllStandardOutput(), QByteArray());
    }

    void secretsAreNotAskedFor()
    {
        QVERIFY(m_stage->startRogue({u"honest"_s, u"UTF8_STRING"_s, u"x-kde-passwordManagerHint"_s}));
        QCOMPARE(types(), QStringList({u"text/plain"_s, u"org.nspasteboard.ConcealedType"_s}));
        QTest::qWait(100);
        QCOMPARE(m_stage->programs.back()->readAllStandardOutput(), QByteArray());
    }

    void secretsOfAnotherOwner()
    {
        QVERIFY(m_stage->startRogue({u"swap"_s, u"UTF8_STRING"_s}));
        QVERIFY(publicTexts(*m_stage->pasteboard, 1000) > 0);
    }

    void rogues_data()
    {
        columns<bool>(); // Whether it is silent for the two seconds after which it is given up.
        for (const char *owner :
             {"silent", "hangHalfWay", "dieHalfWay", "endless", "nothing", "manyTypes", "drip"})
            QTest::newRow(owner) << (owner == "silent"_ba || owner == "hangHalfWay"_ba);
    }

    void rogues()
    {
        const auto [silent] = fetched<bool>();
        meetRogue(silent);
        QCOMPARE(m_seen.isEmpty(), QTest::currentDataTag() == "manyTypes"_ba);
    }

    void nextCopyDoesNotWaitForAHangingOwner()
    {
        QVERIFY(m_stage->startRogue({u"hangHalfWay"_s, u"image/png"_s}));
        types();
        const auto hanging = m_stage->pasteboard->picture();
        QTRY_VERIFY(m_stage->programs.back()->canReadLine());
        QVERIFY(m_stage->copy(u"text/plain"_s, kText.toUtf8()) && !types().isEmpty());
        QCOMPARE(string(), kText);
        QCOMPARE(wait(hanging), std::nullopt);
    }

    void refusedContentStaysWithItsOwner() { refuseContent(0); }

    void readersThatDoNotRead()
    {
        const QByteArray bytes = random(20 * kMegabyte);
        m_stage->write(EncodedPicture{bytes, u"image/png"_s});
        QVERIFY(m_stage->startReader({u"hold"_s, u"image/png"_s, u"100"_s}));
        QVERIFY(m_stage->paste(u"image/png"_s) == bytes && picture() == bytes);
    }

    void idle() { staysAsleep(); }

    void endsWhileAsked()
    {
        QVERIFY(m_stage->startRogue({u"silent"_s, u"UTF8_STRING"_s}));
        types();
        const auto first = m_stage->pasteboard->string();
        const auto second = m_stage->pasteboard->types();
        QTRY_VERIFY(m_stage->programs.back()->canReadLine());
        QVERIFY(!first.isFinished());
        m_stage->pasteboard.reset();
        QCOMPARE(wait(first), std::nullopt);
        QCOMPARE(wait(second), QStringList());
    }

    void compositorEnds_data() { noAndYes("dies", "hangs"); }

    void compositorEnds()
    {
        const auto [hangs] = fetched<bool>();
        Compositor compositor;
        DataControlPasteboard pasteboard(compositor.display());
        pasteboard.write(kText);
        QCOMPARE(wait(pasteboard.types()), QStringList{u"text/plain"_s});
        if (hangs)
            ::kill(static_cast<pid_t>(compositor.process->processId()), SIGSTOP);
        else
            compositor.process->killNow();
        QCOMPARE(wait(pasteboard.string()), std::nullopt);
        QCOMPARE(pasteboard.write(kText), 2);
        QCOMPARE(wait(pasteboard.types()), QStringList());
        QCOMPARE(DataControlPasteboard::isThere(compositor.display()), false);
        compositor.process->killNow();
    }

    void eitherName_data()
    {
        const auto row = columns<QString, QByteArray>();
        row("present", "ext", "ext_data_control_manager_v1");
        row("former", "zwlr", "zwlr_data_control_manager_v1");
        row("both", "zwlr ext", "ext_data_control_manager_v1");
    }

    void eitherName()
    {
        const auto [names, bound] = fetched<QString, QByteArray>();
        CompositorStage stage(u"CompositorStandIn"_s, names.split(u' '));
        QVERIFY(DataControlPasteboard::isThere(stage.compositor.display()));
        stage.reset();
        QTRY_VERIFY(stage.compositor.process->canReadLine());
        QCOMPARE(stage.compositor.process->readLine().trimmed(), bound);
        QVERIFY(stage.startRogue({u"honest"_s, u"UTF8_STRING"_s}));
        QCOMPARE(wait(stage.pasteboard->types()), QStringList{u"text/plain"_s});
        QCOMPARE(wait(stage.pasteboard->string()), u"public"_s);
        DataControlPasteboard other(stage.compositor.display());
        stage.write(kText);
        QCOMPARE(stage.pasteboard->changeCount(), 2);
        QTRY_COMPARE(wait(other.types()), QStringList{u"text/plain"_s});
        QTRY_COMPARE(wait(other.string()), kText);
    }

    void seatGoes()
    {
        CompositorStage stage(u"CompositorStandIn"_s, {u"ext"_s});
        stage.reset();
        stage.write(kText);
        QCOMPARE(wait(stage.pasteboard->types()), QStringList{u"text/plain"_s});
        stage.compositor.process->write("finish\n");
        QTRY_COMPARE(wait(stage.pasteboard->types()), QStringList());
        QCOMPARE(stage.pasteboard->write(u"kept until there is a seat"_s), 2);
        QCOMPARE(wait(stage.pasteboard->types()), QStringList());
        stage.compositor.process->write("seat\n");
        QTRY_COMPARE(wait(stage.pasteboard->types()), QStringList{u"text/plain"_s});
        QCOMPARE(wait(stage.pasteboard->string()), u"kept until there is a seat"_s);
        QVERIFY(stage.startRogue({u"honest"_s, u"UTF8_STRING"_s}));
        QCOMPARE(stage.pasteboard->changeCount(), 3);
    }

    void compositorWithoutDataControl()
    {
        CompositorStage stage(u"CompositorStandIn"_s);
        QVERIFY(!DataControlPasteboard::isThere(stage.compositor.display()));
        stage.reset();
        QCOMPARE(wait(stage.pasteboard->types()), QStringList());
    }

    void compositorNeverAnswers()
    {
        const QTemporaryDir folder;
        QLocalServer server;
        QVERIFY(server.listen(folder.filePath(u"wayland-0"_s)));
        const QByteArray display = folder.filePath(u"wayland-0"_s).toUtf8();
        QVERIFY(!DataControlPasteboard::isThere(display));
        DataControlPasteboard pasteboard(display);
        QCOMPARE(wait(pasteboard.types()), QStringList());
        QCOMPARE(pasteboard.changeCount(), 0);
    }
};

REGISTER_TEST(DataControlPasteboardTest);

#include "DataControlPasteboardTest.moc"
