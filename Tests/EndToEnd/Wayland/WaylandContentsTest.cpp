#include "EndToEnd/Wayland/WaylandStage.h"

#include <csignal>

/// What is copied in other Wayland programs, through the history, back to other programs.
class WaylandContentsTest : public WaylandStageTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyContentComesBackByteForByte_data()
    {
        compositors();
        QTest::newRow("guest of sway") << WaylandStage::Desktop{Compositor::Kind::Sway, true};
        QTest::newRow("guest of KWin") << WaylandStage::Desktop{Compositor::Kind::KWin, true};
    }
    void everyContentComesBackByteForByte()
    {
        QVERIFY(stage().run());
        struct Content
        {
            QString owner, type;
            QByteArray bytes;
        };
        QImage gradient(300, 200, QImage::Format_RGB32);
        for (int y = 0; y < gradient.height(); ++y) {
            for (int x = 0; x < gradient.width(); ++x)
                gradient.setPixel(x, y, qRgb(x, y, x ^ y));
        }
        const QList<Content> contents{
            {u"wl"_s, u"text/plain"_s, "https://example.org/a%20b?q=%C3%BC&r=1#top"_ba},
            {u"gtk"_s, u"text/plain"_s, "ü, שלום, 🚀\n\ttwo lines"_ba},
            {u"wl"_s, u"text/uri-list"_s,
             "file:///tmp/plan%20b%20100%25.pdf\r\nfile:///tmp/%C3%BC%23\r\n"_ba},
            {u"wl"_s, u"image/png"_s, encoded(gradient)},
        };
        for (const auto &[owner, type, bytes] : contents) {
            QVERIFY(waitUntil([&] { return comesBack(owner, type, bytes); }));
            for (const QString &reader : {u"wl"_s, u"qt"_s, u"gtk"_s}) {
                const QByteArray got = pasted(reader, type);
                QVERIFY2(got == bytes, qPrintable(u"%1 of %2 in %3: %4"_s.arg(
                                           type, owner, reader, QString::fromUtf8(got.left(200)))));
            }
        }
    }

    void secretsAndHangingOwnersStopNothing_data() { compositors(); }
    void secretsAndHangingOwnersStopNothing()
    {
        QVERIFY(stage().run());
        ChildProcess manager(session().environment());
        manager.launch(QStringLiteral(KESTRUNE_ROGUE_SOURCE),
                       {u"honest"_s, u"UTF8_STRING"_s, u"x-kde-passwordManagerHint"_s});
        QTRY_VERIFY(offered().contains("x-kde-passwordManagerHint"));
        QTest::qWait(500);
        QCOMPARE(manager.readAllStandardOutput(), QByteArray()); // Nobody has asked for it.
        ChildProcess first(session().environment());
        copy(first, u"wl"_s, u"text/plain"_s, "harmless");
        QTRY_COMPARE(session().copiedTexts(), QStringList{u"harmless"_s});

        // One that stops once it was asked.
        ChildProcess hanging(session().environment());
        hanging.launch(QStringLiteral(KESTRUNE_ROGUE_SOURCE), {u"silent"_s, u"UTF8_STRING"_s});
        QTRY_VERIFY(hanging.canReadLine());
        ::kill(static_cast<pid_t>(hanging.processId()), SIGSTOP);
        ChildProcess second(session().environment());
        copy(second, u"wl"_s, u"text/plain"_s, "later");
        QTRY_COMPARE(session().copiedTexts(), QStringList({u"later"_s, u"harmless"_s}));
        hanging.killNow();
    }

private:
    /// The types of what is copied now.
    QByteArray offered()
    {
        ChildProcess program(session().environment());
        program.launch(u"wl-paste"_s, {u"--list-types"_s});
        program.waitForFinished();
        return program.readAllStandardOutput();
    }

    /// Copies it in that program, another text after it, and takes it from the history again.
    bool comesBack(const QString &owner, const QString &type, const QByteArray &bytes)
    {
        const QStringList before = session().copiedTexts();
        {
            ChildProcess program(session().environment());
            copy(program, owner, type, bytes);
            // A picture is not among the texts; where it takes longer, the next attempt finds it.
            waitUntil([&] { return session().copiedTexts() != before; },
                      type.startsWith("image"_L1) ? 1000 : 60'000);
        }
        ChildProcess between(session().environment());
        copy(between, u"wl"_s, u"text/plain"_s, "between " + bytes.left(8));
        return waitUntil([&] { return session().copiedTexts().value(0).startsWith("between"_L1); }) &&
               chooseSecond() && pasted(u"wl"_s, type) == bytes;
    }

    /// Has that program offer the bytes until it is stopped.
    void copy(ChildProcess &program, const QString &owner, const QString &type, const QByteArray &bytes)
    {
        const QString file = m_folder.filePath(u"copied"_s);
        QVERIFY(writeFile(file, bytes));
        if (owner == "wl"_L1) {
            program.setStandardInputFile(file);
            program.launch(u"wl-copy"_s, {u"--foreground"_s, u"--type"_s, type});
        } else {
            launch(program, owner, {u"copy"_s, type, file});
        }
    }

    QByteArray pasted(const QString &reader, const QString &type)
    {
        ChildProcess program(session().environment());
        if (reader == "wl"_L1)
            program.launch(u"wl-paste"_s, {u"--no-newline"_s, u"--type"_s, type});
        else
            launch(program, reader, {u"paste"_s, type});
        program.waitForFinished(60000);
        return program.readAllStandardOutput();
    }

    /// A program of that toolkit, as a native client.
    static void launch(ChildProcess &program, const QString &toolkit, const QStringList &arguments)
    {
        QProcessEnvironment environment = program.processEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
        environment.insert(u"GDK_BACKEND"_s, u"wayland"_s);
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::SeparateChannels);
        if (toolkit == "qt"_L1)
            program.launch(QStringLiteral(KESTRUNE_QT_CLIENT), arguments);
        else
            program.launch(u"python3"_s, QStringList{QStringLiteral(KESTRUNE_GTK_CLIENT)} + arguments);
    }

    /// Takes the second copy of the history; the other program has the keyboard again after it.
    bool chooseSecond()
    {
        if (session().command({u"open"_s, u"clipboard"_s}).status != 0 || !stage().waitOpen())
            return false;
        input().glide(Place::panel, Place::secondCopy);
        QTest::qWait(300);
        input().click(Place::secondCopy);
        QTest::qWait(100);
        input().move(Place::away);
        return stage().waitClosed() && waitUntil([&] { return stage().other.hasFocus(); });
    }

    QTemporaryDir m_folder;
};

REGISTER_TEST(WaylandContentsTest);
#include "WaylandContentsTest.moc"
