#include "EndToEnd/Stage.h"

#include <QDirIterator>

/// Copies of other programs, through the history, back to other programs.
class ClipboardTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void copiesAreKeptFoundAndGivenBack()
    {
        QVERIFY(stage().run({{"hoverDelay", "60"}}) && stage().choose(u"clipboard"_s));
        QVERIFY(copied(u"UTF8_STRING"_s, "a needle: ü, שלום, 🚀\n") && copied(u"UTF8_STRING"_s, "hay"));
        QVERIFY(copied(u"text/uri-list"_s, "file:///tmp/plan%20b.pdf\r\n"));
        const QByteArray picture = encoded(plainImage({700, 500}));
        session().copy(u"image/png"_s, picture);
        QTest::qWait(1000); // Return below would otherwise replace it before it was looked at.
        QVERIFY(stage().openByHotKey());
        input().type("image");
        QTRY_VERIFY_WITH_TIMEOUT(chosen(u"image/png"_s) == picture, 10000);

        session().program().killNow();
        QVERIFY(session().start() && stage().choose(u"clipboard"_s));
        QCOMPARE(session().copiedTexts(),
                 QStringList({u"plan b.pdf"_s, u"hay"_s, u"a needle: ü, שלום, 🚀"_s}));
        QVERIFY(stage().openByHotKey());
        input().type("needle");
        QTRY_COMPARE(chosen(u"UTF8_STRING"_s), "a needle: ü, שלום, 🚀"_ba);
        for (int i = 0; i < 6; ++i)
            input().tap(XK_BackSpace);
        input().type("pdf");
        QTRY_COMPARE(chosen(u"text/uri-list"_s).trimmed(), "file:///tmp/plan%20b.pdf"_ba);
        QTRY_COMPARE(session().copiedTexts().first(), u"plan b.pdf"_s);
    }

    /// A picture file as a picture, as a file and as its path; a long text whole.
    void everythingIsGivenBack()
    {
        QVERIFY(stage().run({{"hoverDelay", "60"}}) && stage().choose(u"clipboard"_s));
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"photo.jpg"_s);
        QVERIFY(writeFile(file, encoded(plainImage({40, 30}), "jpg")));
        const QByteArray list = QUrl::fromLocalFile(file).toEncoded() + "\r\n";
        const QByteArray code = "    " + QByteArray(6000, 'x') + '\n';
        QVERIFY(copied(u"UTF8_STRING"_s, code) && copied(u"text/uri-list"_s, list));
        QVERIFY(copied(u"UTF8_STRING"_s, "hay"));
        QVERIFY(stage().openByHotKey());
        input().type("jpg");
        QTRY_COMPARE(QImage::fromData(chosen(u"image/png"_s)).size(), QSize(40, 30));
        QCOMPARE(pasted(u"image/jpeg"_s), readFile(file));
        QCOMPARE(pasted(u"text/uri-list"_s), list);
        QCOMPARE(pasted(u"UTF8_STRING"_s), file.toUtf8());
        for (int i = 0; i < 3; ++i)
            input().tap(XK_BackSpace);
        input().type("xxx");
        QTRY_COMPARE(chosen(u"UTF8_STRING"_s), code);
    }

    void copiesOutliveTheirPrograms()
    {
        QVERIFY(stage().run({{"hoverDelay", "60"}}));
        ChildProcess editor(session().environment());
        editor.launch(QStringLiteral(KESTRUNE_ROGUE_OWNER), {u"honest"_s, u"UTF8_STRING"_s});
        QTRY_COMPARE(session().copiedTexts(), QStringList{u"public"_s});
        editor.killNow();
        QTRY_COMPARE(pasted(u"UTF8_STRING"_s), "public"_ba);

        ChildProcess manager(session().environment());
        manager.launch(QStringLiteral(KESTRUNE_ROGUE_OWNER), {u"keep"_s, u"UTF8_STRING"_s});
        QTRY_VERIFY(manager.canReadLine());
        QCOMPARE(session().command({u"quit"_s}).status, 0);
        QTRY_VERIFY(!session().isRunning());
        QCOMPARE(pasted(u"UTF8_STRING"_s), "public"_ba);
    }

    void secretsLeaveNoTrace()
    {
        QVERIFY(stage().run());
        ChildProcess manager(session().environment());
        manager.launch(QStringLiteral(KESTRUNE_ROGUE_OWNER),
                       {u"honest"_s, u"UTF8_STRING"_s, u"x-kde-passwordManagerHint"_s});
        QByteArray asked;
        QTRY_COMPARE(asked += manager.readAllStandardOutput(), "ready\nTARGETS\n"_ba);
        QVERIFY(copied(u"UTF8_STRING"_s, "harmless"));
        QCOMPARE(session().copiedTexts(), QStringList{u"harmless"_s});
        QCOMPARE(manager.readAllStandardOutput(), QByteArray());
        session().endProgram();
        int files = 0;
        QDirIterator all(session().environment().value(u"HOME"_s), QDir::Files | QDir::Hidden,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            QFile file(all.next());
            files += file.open(QIODevice::ReadOnly) ? 1 : 0;
            QVERIFY2(!file.readAll().contains("\"public\""), qPrintable(file.fileName()));
        }
        QVERIFY(files > 0);
    }

private:
    bool copied(const QString &type, const QByteArray &bytes)
    {
        const auto before = session().copiedTexts();
        session().copy(type, bytes);
        return waitUntil([&] { return session().copiedTexts() != before; });
    }

    /// What another program pastes after Return was pressed in the list.
    QByteArray chosen(const QString &type)
    {
        input().tap(XK_Return);
        QTest::qWait(100);
        return pasted(type);
    }

    /// What another program pastes.
    QByteArray pasted(const QString &type)
    {
        ChildProcess client(session().environment());
        client.launch(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-t"_s, type, u"-o"_s});
        client.waitForFinished();
        return client.readAllStandardOutput();
    }
};

REGISTER_TEST(ClipboardTest);
#include "ClipboardTest.moc"
