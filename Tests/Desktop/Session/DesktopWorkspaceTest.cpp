#include "Desktop/Session/DesktopWorkspace.h"
#include "Desktop/BusStandIn.h"
#include "Desktop/Session/CoreDumps.h"
#include "Desktop/Session/PrivacyPages.h"

#include <QStorageInfo>

#include <sys/prctl.h>

/// Showing files in the file manager, over a stand-in of it and of the program that opens folders.
class DesktopWorkspaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_path = qgetenv("PATH");
        QFile opener(m_folder.filePath(u"xdg-open"_s));
        const QByteArray log = m_folder.filePath(u"opened"_s).toUtf8();
        QVERIFY(writeFile(opener.fileName(), "#!/bin/sh\necho \"$@\" >> " + log + '\n'));
        opener.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", m_folder.path().toUtf8() + ':' + m_path);
    }
    void cleanupTestCase() { qputenv("PATH", m_path); }
    void cleanup() { QFile::remove(m_folder.filePath(u"opened"_s)); }

    void theFileManagerSelectsTheFiles()
    {
        BusStandIn manager(u"org.freedesktop.FileManager1"_s);
        QVERIFY(manager.appear([](const QDBusMessage &call) { return call.createReply(); }));
        DesktopWorkspace workspace(manager.bus());
        workspace.reveal({});
        workspace.reveal({QUrl(u"https://example.org/a"_s)});
        workspace.reveal(fileUrls({u"/tmp/50% of it?#1"_s, u"/tmp/Grüße 日本.png"_s}));
        QTRY_COMPARE(manager.called(),
                     QStringList{u"/org/freedesktop/FileManager1 org.freedesktop.FileManager1.ShowItems"_s});
        const QVariantList expected{QStringList{u"file:///tmp/50%25%20of%20it%3F%231"_s,
                                                u"file:///tmp/Gr%C3%BC%C3%9Fe%20%E6%97%A5%E6%9C%AC.png"_s},
                                    QString()};
        QCOMPARE(manager.calls.constFirst().arguments(), expected);
        QVERIFY(holdsFor([&] { return opened().isEmpty(); }, 100));
    }

    void foldersOpenWhereNoFileManagerAnswers_data()
    {
        columns<bool, bool>();
        QTest::newRow("there is none") << false << false;
        QTest::newRow("it refuses") << true << true;
        QTest::newRow("it hangs") << true << false;
    }

    void foldersOpenWhereNoFileManagerAnswers()
    {
        const auto [present, answers] = fetched<bool, bool>();
        BusStandIn manager(u"org.freedesktop.FileManager1"_s);
        const auto refuse = [answers](const QDBusMessage &call) {
            return answers
                       ? std::optional(call.createErrorReply(QDBusError::NotSupported, u"no window here"_s))
                       : std::nullopt;
        };
        QVERIFY(!present || manager.appear(refuse));
        DesktopWorkspace workspace(manager.bus());
        QElapsedTimer blocked;
        blocked.start();
        workspace.reveal(
            fileUrls({u"/tmp/a b/1"_s, u"/tmp/a b/2"_s, u"/tmp/c/folder/"_s, u"/file"_s, u"/d/4"_s}));
        // Of the five seconds that it hangs.
        QVERIFY2(blocked.elapsed() < 4000, "the caller waited");
        QVERIFY(waitUntil([&] { return opened().size() == 3; }));
        QVERIFY(holdsFor([&] { return opened().size() == 3; }, 100));
        QStringList folders = opened();
        folders.sort(); // They are opened by programs of their own, which run at the same time.
        QCOMPARE(folders, QStringList({u"file:///"_s, u"file:///tmp/a%20b/"_s, u"file:///tmp/c/"_s}));
    }

    void theInstalledEditorOpensPictures_data()
    {
        // What is installed, what the user prefers, and which one edits.
        columns<QStringList, QByteArray, QString>();
        QTest::newRow("none") << QStringList{u"viewer"_s, u"hidden"_s, u"gone"_s} << QByteArray()
                              << QString();
        QTest::newRow("any") << QStringList{u"viewer"_s, u"painter"_s} << QByteArray() << u"painter"_s;
        QTest::newRow("one for notes") << QStringList{u"painter"_s, u"notes"_s} << QByteArray() << u"notes"_s;
        QTest::newRow("preferred") << QStringList{u"painter"_s, u"notes"_s}
                                   << "[Added Associations]\nimage/png=viewer.desktop;painter.desktop;\n"_ba
                                   << u"painter"_s;
    }
    void theInstalledEditorOpensPictures()
    {
        const auto [installed, associations, edits] = fetched<QStringList, QByteArray, QString>();
        const QMap<QString, QByteArray> keys{
            {u"viewer"_s, "Categories=Graphics;RasterGraphics;Viewer;"},
            {u"hidden"_s, "Categories=Graphics;RasterGraphics;\nNoDisplay=true"},
            {u"gone"_s, "Categories=RasterGraphics;\nTryExec=/not/there"},
            {u"painter"_s, "Categories=Graphics;RasterGraphics;"},
            {u"notes"_s, "Categories=Utility;Annotation;"}};
        QTemporaryDir data;
        const QByteArray log = m_folder.filePath(u"opened"_s).toUtf8();
        for (const QString &name : installed)
            QVERIFY(writeFile(data.filePath(u"applications/%1.desktop"_s.arg(name)),
                              "[Desktop Entry]\nType=Application\nMimeType=image/jpeg;image/png;\n" +
                                  keys[name] + "\nExec=sh -c \"echo " + name.toUtf8() + " $0 >> " + log +
                                  "\" %f %i\n"));
        QVERIFY(writeFile(data.filePath(u"applications/mimeapps.list"_s), associations));
        for (const char *name : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME"})
            qputenv(name, data.path().toUtf8());
        BusStandIn bus(u"org.freedesktop.FileManager1"_s);
        DesktopWorkspace workspace(bus.bus());
        const auto has = workspace.hasPictureEditor();
        QTRY_VERIFY(has.isFinished());
        QCOMPARE(has.result(), !edits.isEmpty());
        workspace.edit(QUrl::fromLocalFile(u"/tmp/50%_#1.png"_s));
        if (!edits.isEmpty())
            QTRY_COMPARE(opened(), QStringList{edits + u" /tmp/50%_#1.png"_s});
    }

    void filesGoToTheTrash()
    {
        QTemporaryDir home;
        qputenv("XDG_DATA_HOME", home.filePath(u"data"_s).toUtf8());
        const QString file = home.filePath(u"50% #1.png"_s);
        QVERIFY(writeFile(file, "picture"));
        BusStandIn bus(u"org.freedesktop.FileManager1"_s);
        DesktopWorkspace workspace(bus.bus());
        const auto outcome = [](const QFuture<bool> &moved) {
            return waitUntil([&] { return moved.isFinished(); }) && moved.result();
        };
        QVERIFY(outcome(workspace.moveToTrash(QUrl::fromLocalFile(file))));
        QVERIFY(!QFile::exists(file));
        const QStringList trashed =
            QDir(home.filePath(u"data/Trash/files"_s)).entryList(QDir::Files) +
            QDir(QStorageInfo(home.path()).rootPath()).entryList({u".Trash*"_s}, QDir::Dirs | QDir::Hidden);
        QVERIFY2(!trashed.isEmpty(), "it is in no trash");
        QVERIFY(!outcome(workspace.moveToTrash(QUrl::fromLocalFile(file))));
        QVERIFY(!outcome(workspace.moveToTrash(QUrl(u"https://example.org/"_s))));
    }

    void privacyPages_data()
    {
        const auto row = columns<QString, QStringList, QStringList, QString>();
        const QStringList all{u"gnome-control-center"_s, u"systemsettings"_s, u"xfce4-settings-manager"_s};
        row("GNOME", u"ubuntu:GNOME"_s, all, {u"gnome-camera-panel"_s, u"kcm_flatpak"_s},
            u"gnome-control-center camera"_s);
        row("a later one", u"GNOME"_s, all, {u"gnome-privacy-panel"_s},
            u"gnome-control-center privacy camera"_s);
        row("KDE", u"KDE"_s, all, {u"gnome-camera-panel"_s, u"kcm_flatpak"_s},
            u"systemsettings kcm_flatpak"_s);
        row("without the page", u"KDE"_s, all, {}, u"systemsettings"_s);
        row("Xfce", u"XFCE"_s, all, {u"gnome-camera-panel"_s}, u"xfce4-settings-manager"_s);
        row("without its own", u"sway"_s, all.mid(0, 2), {u"kcm_app-permissions"_s},
            u"systemsettings kcm_app-permissions"_s);
        row("of no use elsewhere", u"XFCE"_s, all.mid(0, 1), {u"gnome-camera-panel"_s}, QString());
    }

    void privacyPages()
    {
        const auto [desktop, programs, entries, command] =
            fetched<QString, QStringList, QStringList, QString>();
        const QTemporaryDir folder;
        for (const QString &name : programs) {
            QFile program(folder.filePath(name));
            QVERIFY(writeFile(program.fileName(), "#!/bin/sh\n"));
            program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        }
        for (const QString &name : entries)
            QVERIFY(writeFile(folder.filePath(u"applications/%1.desktop"_s.arg(name)), {}));
        const QByteArray data = qgetenv("XDG_DATA_DIRS");
        const QByteArray path = qgetenv("PATH");
        qputenv("XDG_DATA_DIRS", folder.path().toUtf8());
        qputenv("PATH", folder.path().toUtf8());
        qputenv("XDG_CURRENT_DESKTOP", desktop.toUtf8());
        const QString page = privacyPage(u"Privacy_Camera"_s).join(u' ');
        qputenv("XDG_DATA_DIRS", data);
        qputenv("PATH", path);
        qunsetenv("XDG_CURRENT_DESKTOP");
        QCOMPARE(page, command.isEmpty() ? QString() : folder.filePath(command));
    }

    void onlyWhatItOpensMayDumpCore()
    {
        const auto allowed = [] {
            QProcess shell;
            shell.start(u"sh"_s, {u"-c"_s, u"ulimit -c"_s});
            return shell.waitForFinished() ? shell.readAllStandardOutput().trimmed() : QByteArray();
        };
        const QByteArray before = allowed();
        QVERIFY(writeFile(m_folder.filePath(u"xdg-open"_s),
                          "#!/bin/sh\nulimit -c >> " + m_folder.filePath(u"opened"_s).toUtf8() + '\n'));
        CoreDumps::forbid();
        QCOMPARE(allowed(), "0");
        BusStandIn manager(u"org.freedesktop.FileManager1"_s);
        DesktopWorkspace(manager.bus()).open(QUrl(u"https://example.org/"_s));
        QTRY_COMPARE(opened(), QStringList{QString::fromLatin1(before)});
    }

    void theServiceManagerOpensWhatWallsWouldHoldBack()
    {
        QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
        QVERIFY(writeFile(runtime.filePath(u"systemd/private"_s), {}));
        QFile starter(m_folder.filePath(u"systemd-run"_s));
        QVERIFY(writeFile(starter.fileName(),
                          "#!/bin/sh\necho \"$@\" >> " + m_folder.filePath(u"opened"_s).toUtf8() + '\n'));
        starter.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0); // The last test: there is no way back.
        BusStandIn manager(u"org.freedesktop.FileManager1"_s);
        DesktopWorkspace(manager.bus()).open(QUrl(u"https://example.org/"_s));
        QTRY_COMPARE(opened(), QStringList{u"--user --quiet --collect -- xdg-open https://example.org/"_s});
    }

private:
    QStringList opened() const
    {
        const QByteArray log = readFile(m_folder.filePath(u"opened"_s));
        return QString::fromUtf8(log).split(u'\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir m_folder;
    QByteArray m_path;
};

REGISTER_TEST(DesktopWorkspaceTest);
#include "DesktopWorkspaceTest.moc"
