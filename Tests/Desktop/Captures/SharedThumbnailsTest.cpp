#include "Desktop/Captures/SharedThumbnails.h"
#include "CaptureHome.h"
#include "Desktop/Captures/ThumbnailFile.h"
#include "Support/TestRegistry.h"

#include <QDateTime>
#include <QTest>

#include <sys/stat.h>

using namespace Kestrune;

class SharedThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data();
    void sizes();
    void refusals_data();
    void refusals();
    void sharesWhatItMakes();
    void ownFilesOfTheCacheStayOut();
    void lastAskedIsMadeFirst();
};

void SharedThumbnailsTest::sizes_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("thumbnail");
    QTest::newRow("screen") << QSize(1280, 800) << QSize(256, 160);
    QTest::newRow("tall") << QSize(300, 3000) << QSize(25, 256);
    QTest::newRow("line") << QSize(4000, 1) << QSize(256, 1);
    QTest::newRow("small") << QSize(40, 30) << QSize(40, 30);
}

void SharedThumbnailsTest::sizes()
{
    QFETCH(const QSize, picture);
    const CaptureHome home;
    const QString path = home.write(QStringLiteral("a.png"), CaptureHome::picture(picture));
    QTEST(ThumbnailFile::read(path).size(), "thumbnail");
}

void SharedThumbnailsTest::refusals_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QImage bomb(9000, 9000, QImage::Format_Mono);
    bomb.fill(0);
    QBuffer buffer;
    bomb.save(&buffer, "png");
    QVERIFY(buffer.data().size() < 100'000);
    QTest::newRow("bomb") << buffer.data();
    QTest::newRow("cut off") << CaptureHome::picture({400, 300}).left(30);
    QTest::newRow("text") << QByteArray("a text");
    QTest::newRow("long") << CaptureHome::picture() + QByteArray(64 * 1024 * 1024, 'x');
    QTest::newRow("pipe") << QByteArray();
}

void SharedThumbnailsTest::refusals()
{
    QFETCH(const QByteArray, bytes);
    const CaptureHome home;
    const QString path = home.path(QStringLiteral("a.png"));
    if (bytes.isEmpty())
        QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    else
        home.write(QStringLiteral("a.png"), bytes);
    QVERIFY(ThumbnailFile::read(path).isNull());
    QVERIFY(ThumbnailFile::read(home.path(QStringLiteral("missing.png"))).isNull());
    QVERIFY2(!QFile::exists(home.path(QStringLiteral(".cache"))), "nothing is recorded");
}

void SharedThumbnailsTest::sharesWhatItMakes()
{
    const CaptureHome home;
    const QString path = home.write(QStringLiteral("Bild; ü#1 (a).png"), CaptureHome::picture({800, 600}));
    const QByteArray address = ThumbnailFile::addressOf(path);
    QVERIFY(address.startsWith("file:///") && address.endsWith("/Bild%3B%20%C3%BC%231%20(a).png"));
    ThumbnailFile::read(path);
    const QString file = ThumbnailFile::pathFor(path);
    QVERIFY(file.startsWith(home.path(QStringLiteral(".cache/thumbnails/large/"))));
    struct stat status
    {};
    QVERIFY(::stat(qPrintable(file), &status) == 0 && (status.st_mode & 07777) == 0600);
    QVERIFY(::stat(qPrintable(QFileInfo(file).path()), &status) == 0 && (status.st_mode & 07777) == 0700);
    QCOMPARE(QDir(QFileInfo(file).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    QImage stored(file);
    QCOMPARE(stored.size(), QSize(256, 192));
    QCOMPARE(stored.text(QStringLiteral("Thumb::URI")).toLatin1(), address);
    QCOMPARE(stored.text(QStringLiteral("Thumb::MTime")).toLongLong(),
             QFileInfo(path).lastModified().toSecsSinceEpoch());

    // One that another program made is taken as it is, unless it is of an earlier state or another file.
    const auto replace = [&](const char *key, const QString &value) {
        QImage other(64, 48, QImage::Format_RGB32);
        other.fill(0xffff0000);
        for (const QString &name : stored.textKeys())
            other.setText(name, stored.text(name));
        other.setText(QString::fromLatin1(key), value);
        return other.save(file);
    };
    QVERIFY(replace("Software", QStringLiteral("other")));
    QCOMPARE(ThumbnailFile::read(path).pixelColor(0, 0), QColor(Qt::red));
    for (const char *key : {"Thumb::MTime", "Thumb::URI"}) {
        QVERIFY(replace(key, QStringLiteral("1")));
        QCOMPARE(ThumbnailFile::read(path).size(), QSize(256, 192));
        QCOMPARE(QImage(file).size(), QSize(256, 192));
    }
}

void SharedThumbnailsTest::ownFilesOfTheCacheStayOut()
{
    const CaptureHome home;
    const QString path =
        home.write(QStringLiteral(".cache/thumbnails/large/a.png"), CaptureHome::picture({800, 600}));
    QCOMPARE(ThumbnailFile::read(path).size(), QSize(256, 192));
    QVERIFY(!QFile::exists(ThumbnailFile::pathFor(path)));
}

void SharedThumbnailsTest::lastAskedIsMadeFirst()
{
    const CaptureHome home;
    QStringList made;
    {
        SharedThumbnails thumbnails;
        QList<QFuture<QImage>> answers;
        for (int i = 0; i < 6; ++i)
            home.write(QStringLiteral("%1.png").arg(i), CaptureHome::picture({4000, 3000}));
        for (int i = 0; i < 6; ++i) {
            const QString path = home.path(QStringLiteral("%1.png").arg(i));
            answers.append(thumbnails.thumbnail(path));
            answers.last().then(this, [&made, i](const QImage &image) {
                made.append(QString::number(i) + QString::number(image.width()));
            });
        }
        answers[3].cancel();
        QTRY_COMPARE(made.size(), 5);
        QVERIFY(!made.contains(QStringLiteral("3256")));
        QVERIFY(made.indexOf(QStringLiteral("5256")) < made.indexOf(QStringLiteral("2256")));
        answers.append(thumbnails.thumbnail(home.path(QStringLiteral("0.png"))));
    }
    QVERIFY(ThumbnailFile::read(home.path(QStringLiteral("3.png"))).width() == 256);
}

REGISTER_TEST(SharedThumbnailsTest);
#include "SharedThumbnailsTest.moc"
