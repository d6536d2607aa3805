#include "NotchKit/Tools/Shelf/ShelfModel.h"
#include "NotchKit/FileSymbols.h"
#include "Support/Core.h"

#include <QTemporaryFile>

/// A folder with files to be shelved.
struct Folder
{
    Folder()
    {
        for (const QString &name : {u"a"_s, u"b %41.txt"_s, u"日本\n.pdf"_s}) {
            if (writeFile(dir.filePath(name)))
                urls.append(QUrl::fromLocalFile(dir.filePath(name)));
        }
        QDir(dir.path()).mkdir(u"sub"_s);
        urls.append(QUrl::fromLocalFile(dir.filePath(u"sub"_s)));
    }

    QStringList paths() const { return each(urls, &QUrl::toLocalFile); }

    QTemporaryDir dir;
    QList<QUrl> urls;
};

class ShelfModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesAreKeptOnceInTheirOrder()
    {
        const Folder folder;
        Fakes::Core core;
        ShelfModel &shelf = *core.services.model<ShelfModel>();
        shelf.add({folder.urls[1], QUrl(u"https://example.org/a"_s), folder.urls[0]});
        core.drags.files = {folder.urls[0], folder.urls[2], folder.urls[3], folder.urls[2]};
        shelf.loadURLs();
        const QList<QUrl> all{folder.urls[1], folder.urls[0], folder.urls[2], folder.urls[3]};
        QTRY_COMPARE(shelf.items(), all);

        NotchSettings reread(core.defaults);
        QCOMPARE(reread.shelfPaths().size(), 4);
        QTRY_COMPARE(shelf.tiles().at(3).symbol, u"folder"_s);
        QCOMPARE(shelf.tiles().at(0).name, u"b %41.txt"_s);
        shelf.remove(folder.urls[0]);
        shelf.remove(QUrl(u"file:///not/there"_s));
        QCOMPARE(core.settings.shelfPaths(),
                 QStringList({folder.paths()[1], folder.paths()[2], folder.paths()[3]}));
        shelf.reveal();
        QCOMPARE(core.workspace.revealed, QList<QList<QUrl>>{shelf.items()});
        shelf.clear();
        QCOMPARE(core.settings.shelfPaths(), QStringList());
        QCOMPARE(shelf.airDrop(), 0);
        core.settings.setShelfPaths({folder.paths()[0]});
        QCOMPARE(shelf.items(), QList<QUrl>{folder.urls[0]});
    }

    void filesOfDisksThatAreAwayStay()
    {
        QTemporaryDir folder;
        const QString stick = folder.filePath(u"stick"_s);
        const QString away = stick + u"/a.txt"_s, gone = folder.filePath(u"b.txt"_s);
        QTemporaryFile mounted(u"/dev/shm/kestrune-XXXXXX"_s);
        const bool isMounted = mounted.open();
        Fakes::StartedCore core(
            {{u"notch.shelfPaths"_s, QStringList{away, gone}}, {u"notch.shelfMounts"_s, QStringList{stick}}});
        ShelfModel &shelf = *core.services.model<ShelfModel>();
        QTRY_COMPARE(core.settings.shelfPaths(), QStringList{away});
        QTRY_VERIFY(shelf.tiles().constFirst().away);
        QCOMPARE(core.settings.shelfMounts(), QStringList{stick});
        QVERIFY2(shelf.draggedWith(shelf.items().constFirst()).isEmpty() && shelf.airDrop() == 0,
                 "it is away");
        QVERIFY(writeFile(away));
        core.controller.open(NotchTool::shelf);
        QTRY_VERIFY(!shelf.tiles().constFirst().away);
        QVERIFY2(core.settings.shelfMounts().filter(stick).isEmpty(), "nothing is mounted there");

        if (isMounted) {
            shelf.add({QUrl::fromLocalFile(mounted.fileName())});
            QTRY_VERIFY(core.settings.shelfMounts().contains(u"/dev/shm"_s));
            mounted.remove();
            core.controller.open(NotchTool::note);
            core.controller.open(NotchTool::shelf);
            QTRY_COMPARE(shelf.items().size(), 1);
        }
    }

    void mountTables_data()
    {
        columns<QString, QString>();
        QTest::newRow("root") << u"/home/a/b"_s << u"/"_s;
        QTest::newRow("innermost") << u"/mnt/nas/docs/b"_s << u"/mnt/nas"_s;
        QTest::newRow("not its namesake") << u"/mnt/nas2/b"_s << u"/"_s;
        QTest::newRow("a blank") << u"/media/ann/My Stick/b"_s << u"/media/ann/My Stick"_s;
        QTest::newRow("waits to be mounted") << u"/net/server/b"_s << u"/"_s;
        QTest::newRow("a share of many")
            << u"/run/user/7/gvfs/smb-share:server=x/b/c"_s << u"/run/user/7/gvfs/smb-share:server=x"_s;
    }
    void mountTables()
    {
        const auto [path, root] = fetched<QString, QString>();
        const MountTable table(
            "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
            "30 22 0:40 / /mnt/nas rw shared:9 - nfs4 server:/x rw\n"
            "31 22 8:17 / /media/ann/My\\040Stick rw - vfat /dev/sdb1 rw\n"
            "32 22 0:41 / /net/server rw - autofs systemd-1 rw\n"
            "33 22 0:42 / /run/user/7/gvfs rw master:2 - fuse.gvfsd-fuse gvfsd-fuse rw\n\nrubbish");
        QCOMPARE(table.rootOf(path), root);
        QCOMPARE(MountTable().rootOf(path), QString());
    }

    void severalAreChosen()
    {
        const Folder folder;
        Fakes::Core core({{u"notch.shelfPaths"_s, folder.paths()}});
        ShelfModel &shelf = *core.services.model<ShelfModel>();
        const auto chosen = [&] {
            QString picture;
            for (const ShelfTile &tile : shelf.tiles())
                picture += tile.chosen ? u'x' : u'.';
            return picture;
        };
        const auto &urls = folder.urls;
        shelf.choose(urls[1], Qt::NoModifier);
        QCOMPARE(chosen(), u".x.."_s);
        shelf.choose(urls[3], Qt::ShiftModifier);
        QCOMPARE(chosen(), u".xxx"_s);
        shelf.choose(urls[0], Qt::ShiftModifier);
        QCOMPARE(chosen(), u"xx.."_s);
        shelf.choose(urls[3], Qt::ControlModifier);
        shelf.choose(urls[1], Qt::ControlModifier);
        QCOMPARE(chosen(), u"x..x"_s);
        QCOMPARE(shelf.draggedWith(urls[3]), (QList<QUrl>{urls[0], urls[3]}));
        QCOMPARE(shelf.draggedWith(urls[2]), QList<QUrl>{urls[2]});
        shelf.reveal();
        QCOMPARE(core.workspace.revealed.value(0), (QList<QUrl>{urls[0], urls[3]}));
        shelf.removeWith(urls[0]);
        QCOMPARE(shelf.items(), (QList<QUrl>{urls[1], urls[2]}));
        QCOMPARE(chosen(), u".."_s);
        shelf.chooseAll();
        QCOMPARE(chosen(), u"xx"_s);
        shelf.visibleToolChanged(NotchTool::shelf);
        QCOMPARE(chosen(), u".."_s);
    }

    void filesThatAreGoneLeave_data()
    {
        columns<bool, bool, int>();
        QTest::newRow("at the start") << true << false << 0;
        QTest::newRow("when the pane is shown") << false << true << 0;
        QTest::newRow("while a notch is open") << false << false << 31;
    }
    void filesThatAreGoneLeave()
    {
        const auto [restart, show, seconds] = fetched<bool, bool, int>();
        const Folder folder;
        Fakes::StartedCore core({{u"notch.shelfPaths"_s, folder.paths()}});
        core.controller.open(NotchTool::note);
        QTRY_COMPARE(core.services.model<ShelfModel>()->tiles().at(3).symbol, u"folder"_s);
        QFile::remove(folder.paths()[1]);
        const QStringList left{folder.paths()[0], folder.paths()[2], folder.paths()[3]};
        if (restart) {
            NotchSettings settings(core.defaults);
            NotchServices services(settings, NotchBranding::none(), core.ports());
            QTRY_COMPARE(settings.shelfPaths(), left);
            return;
        }
        if (show)
            core.controller.open(NotchTool::shelf);
        core.wait(seconds * 1000);
        QTRY_COMPARE(core.settings.shelfPaths(), left);
    }

    void typesHaveSymbols_data()
    {
        QTest::addColumn<QString>("symbol");
        const QString rows = u"a.JPG=photo b.tar.gz=doc.zipper c.mkv=film d.pdf=doc.richtext e.docx=doc "
                             "f.cpp=doc.text g.json=doc.text h=doc i.flac=music.note"_s;
        for (const QString &row : rows.split(u' '))
            QTest::newRow(qPrintable(row.section(u'=', 0, 0))) << row.section(u'=', 1);
    }
    void typesHaveSymbols()
    {
        QFETCH(const QString, symbol);
        QCOMPARE(fileSymbol(QString::fromLatin1(QTest::currentDataTag())), symbol);
    }
};

REGISTER_TEST(ShelfModelTest);
#include "ShelfModelTest.moc"
