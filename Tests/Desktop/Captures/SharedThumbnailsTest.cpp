#include "Desktop/Captures/SharedThumbnails.h"
#include "CaptureHome.h"
#include "Desktop/Captures/ThumbnailFile.h"
#include "Desktop/Pictures/HelperPictures.h"
#include "Support/TestRegistry.h"

#include <QFutureWatcher>

#include <sys/stat.h>

class SharedThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusals_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QVERIFY(pictureBomb().size() < 100'000);
        QTest::newRow("bomb") << pictureBomb();
        QTest::newRow("cut off") << CaptureHome::picture({400, 300}).left(30);
        QTest::newRow("text") << QByteArray("a text");
        QTest::newRow("long") << CaptureHome::picture() + QByteArray(64 * 1024 * 1024, 'x');
        QTest::newRow("pipe") << QByteArray();
    }

    void refusals()
    {
        QFETCH(const QByteArray, bytes);
        const CaptureHome home;
        const QString path = home.path(u"a.png"_s);
        if (bytes.isEmpty())
            QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
        else
            home.write(u"a.png"_s, bytes);
        QVERIFY(read(path).isNull() && read(home.path(u"missing.png"_s)).isNull());
        QVERIFY2(!QFile::exists(home.path(u".cache"_s)), "nothing is recorded");
    }

    void sharesWhatItMakes()
    {
        const CaptureHome home;
        const QString path = home.write(u"Bild; ü#1 (a).png"_s, CaptureHome::picture({800, 600}));
        const QByteArray address = ThumbnailFile::addressOf(path);
        QVERIFY(address.startsWith("file:///") && address.endsWith("/Bild%3B%20%C3%BC%231%20(a).png"));
        read(path);
        const QString file = ThumbnailFile::pathFor(path);
        QVERIFY(file.startsWith(home.path(u".cache/thumbnails/large/"_s)));
        struct stat status
        {};
        QVERIFY(::stat(qPrintable(file), &status) == 0 && (status.st_mode & 07777) == 0600);
        QVERIFY(::stat(qPrintable(QFileInfo(file).path()), &status) == 0 && (status.st_mode & 07777) == 0700);
        QCOMPARE(QDir(QFileInfo(file).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        QImage stored(file);
        QCOMPARE(stored.size(), QSize(256, 192));
        QCOMPARE(stored.text(u"Thumb::URI"_s).toLatin1(), address);
        QCOMPARE(stored.text(u"Thumb::MTime"_s).toLongLong(),
                 QFileInfo(path).lastModified().toSecsSinceEpoch());

        // One that another program made is taken as it is, unless it is of an earlier state or another file.
        const auto replace = [&](const char *key, const QString &value) {
            QImage other = plainImage({64, 48}, Qt::red);
            for (const QString &name : stored.textKeys())
                other.setText(name, stored.text(name));
            other.setText(QString::fromLatin1(key), value);
            return other.save(file);
        };
        QVERIFY(replace("Software", u"other"_s));
        QCOMPARE(read(path).pixelColor(0, 0), QColor(Qt::red));
        for (const char *key : {"Thumb::MTime", "Thumb::URI"}) {
            QVERIFY(replace(key, u"1"_s));
            QCOMPARE(read(path).size(), QSize(256, 192));
            QCOMPARE(QImage(file).size(), QSize(256, 192));
        }
    }

    void ownFilesOfTheCacheStayOut()
    {
        const CaptureHome home;
        const QString path = home.write(u".cache/thumbnails/large/a.png"_s, CaptureHome::picture({800, 600}));
        QCOMPARE(read(path).size(), QSize(256, 192));
        QVERIFY(!QFile::exists(ThumbnailFile::pathFor(path)));
    }

    void lastAskedIsMadeFirst()
    {
        const CaptureHome home;
        for (int i = 0; i < 6; ++i)
            home.write(u"%1.png"_s.arg(i), CaptureHome::picture({4000, 3000}));
        QStringList made;
        // All must be asked for before any is made, else the machine was too slow to see an order.
        for (bool inTime = false; !inTime;) {
            made.clear();
            QVERIFY(QDir(home.path(u".cache/thumbnails"_s)).removeRecursively());
            SharedThumbnails thumbnails(m_pictures);
            QList<QFuture<QImage>> answers;
            QObject watchers;
            for (int i = 0; i < 6; ++i) {
                answers.append(thumbnails.thumbnail(home.path(u"%1.png"_s.arg(i))));
                auto *watcher = new QFutureWatcher<QImage>(&watchers);
                connect(watcher, &QFutureWatcherBase::finished, this, [&made, i, watcher] {
                    if (!watcher->isCanceled())
                        made.append(QString::number(i) + QString::number(watcher->result().width()));
                });
                watcher->setFuture(answers.last());
            }
            inTime = std::ranges::none_of(answers, &QFuture<QImage>::isFinished);
            answers[3].cancel();
            QTRY_COMPARE(made.size(), 5);
            if (inTime)
                answers.append(thumbnails.thumbnail(home.path(u"0.png"_s)));
        }
        QVERIFY(!made.contains(u"3256"_s));
        const QStringList later = made.mid(1); // One was begun while others were still asked for.
        QStringList newestFirst = later;
        newestFirst.sort();
        std::ranges::reverse(newestFirst);
        QCOMPARE(later, newestFirst);
        QVERIFY(read(home.path(u"3.png"_s)).width() == 256);
    }

private:
    QImage read(const QString &path) const { return ThumbnailFile::read(path, *m_pictures); }

    const std::shared_ptr<PictureReader> m_pictures =
        std::make_shared<HelperPictures>(QStringLiteral(KESTRUNE_READER));
};

REGISTER_TEST(SharedThumbnailsTest);
#include "SharedThumbnailsTest.moc"
