#include "NotchKit/Tools/Shelf/ShelfModel.h"
#include "NotchKit/FileSymbols.h"
#include "Support/Core.h"

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
