#include "Desktop/Pictures/HelperPictures.h"
#include "Support/Files.h"
#include "Support/TestRegistry.h"

#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

/// Pictures read by the real reader, which is ended, stopped and asked for what it must not do.
class HelperPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItIsAskedFor_data()
    {
        const auto row = columns<QByteArray, QSize, PictureWish, QSize>();
        using enum PictureWish::Fit;
        using enum PictureWish::Formats;
        row("inside", "png", {800, 600}, {inside, web, 256, 1'000'000}, {256, 192});
        row("smaller", "png", {80, 60}, {inside, web, 256, 1'000'000}, {80, 60});
        row("tall", "png", {300, 3000}, {inside, web, 256, 1'000'000}, {25, 256});
        row("line", "png", {4000, 1}, {inside, web, 256, 1'000'000}, {256, 1});
        row("middle", "jpeg", {800, 600}, {middle, web, 96, 1'000'000}, {96, 96});
        row("long", "png", {800, 20}, {middle, web, 96, 1'000'000}, {96, 20});
        row("WebP", "webp", {80, 60}, {inside, web, 40, 1'000'000}, {40, 30});
        row("BMP", "bmp", {80, 60}, {inside, clipboard, 40, 1'000'000}, {40, 30});
        row("TIFF", "tiff", {80, 60}, {inside, clipboard, 40, 1'000'000}, {40, 30});
        row("whole", "tiff", {1500, 60}, {whole, clipboard, 40, 90'000}, {1500, 60});
        row("whole, but too large", "png", {800, 600}, {whole, web, 40, 479'999}, {0, 0});
        row("not on the web", "bmp", {80, 60}, {inside, web, 40, 1'000'000}, {0, 0});
        row("of no named kind", "ppm", {80, 60}, {inside, clipboard, 40, 1'000'000}, {0, 0});
        row("too large", "png", {800, 600}, {inside, web, 40, 479'999}, {0, 0});
    }
    void readsWhatItIsAskedFor()
    {
        const auto [format, size, wish, expected] = fetched<QByteArray, QSize, PictureWish, QSize>();
        const QImage whole = plainImage(size, QColor(200, 100, 50));
        const QByteArray bytes = encoded(whole, format.constData());
        QVERIFY(!bytes.isEmpty());
        const ReadPicture picture = m_pictures.read(bytes, wish);
        QCOMPARE(picture.image.size(), expected);
        QCOMPARE(picture.size, expected.isEmpty() ? QSize() : size);
        if (!expected.isEmpty())
            QVERIFY(std::abs(picture.image.pixelColor(5, 0).red() - 200) < 4);

        QTemporaryDir folder;
        QFile file(folder.filePath(u"a picture"_s));
        QVERIFY(writeFile(file.fileName(), bytes) && file.open(QIODevice::ReadOnly) && file.seek(7));
        QCOMPARE(m_pictures.readFile(file.handle(), wish).image, picture.image);
    }

    void itsEndCostsOnePicture()
    {
        QTemporaryDir folder;
        const QString reader = folder.filePath(u"reader"_s);
        QVERIFY(QFile::copy(QStringLiteral(KESTRUNE_READER), reader));
        HelperPictures pictures(reader);
        const QByteArray good = encoded(plainImage({80, 60}));
        const auto reads = [&] { return !pictures.read(good, {}).image.isNull(); };
        QVERIFY(reads());
        const QList<pid_t> first = running(reader);
        QCOMPARE(first.size(), 1);
        ::kill(first.first(), SIGKILL);
        QTRY_VERIFY(reads());
        const QList<pid_t> second = running(reader);
        QVERIFY(second.size() == 1 && second != first);
        QVERIFY(pictures.read(good.left(good.size() / 2), {}).image.isNull());
        QCOMPARE(running(reader), second); // what is damaged does not end it
        QVERIFY(HelperPictures(u"/nowhere"_s).read(good, {}).image.isNull());
        QVERIFY(reads());
    }

    void wallsHold_data()
    {
        const auto row = columns<QString, QString, bool>();
        // The camera's: by the first ones it is to find a camera still, by all of them to take pictures.
        const QStringList attempts{
            u"read of the user's"_s, u"write"_s, u"connect"_s, u"fork"_s,      u"execute"_s,
            u"allocate"_s,           u"read"_s,  u"bus"_s,     u"make code"_s, u"compute"_s};
        for (const QString &walls : {u"reader"_s, u"look"_s, u"pictures"_s}) {
            const qsizetype refused = walls == "look"_L1 ? 6 : 9;
            for (qsizetype i = 0; i < attempts.size(); ++i)
                row(qPrintable(walls + u": "_s + attempts.at(i)), walls, attempts.at(i), i < refused);
        }
    }
    void wallsHold()
    {
        const auto [walls, attempt, refused] = fetched<QString, QString, bool>();
        QCOMPARE(QProcess::execute(QStringLiteral(KESTRUNE_WALLS_PROBE), {walls, attempt}), refused ? 0 : 1);
    }

private:
    static QList<pid_t> running(const QString &program)
    {
        QList<pid_t> processes;
        for (const QString &name : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
            if (QFileInfo(u"/proc/%1/exe"_s.arg(name)).symLinkTarget() == program)
                processes.append(name.toInt());
        }
        return processes;
    }

    HelperPictures m_pictures{QStringLiteral(KESTRUNE_READER)};
};

REGISTER_TEST(HelperPicturesTest);
#include "HelperPicturesTest.moc"
