// What it costs to follow the screenshots: finding them among 20,000 pictures, keeping watch, and the way
// from a saved file to its thumbnail.

#include "Desktop/Captures/FolderCaptureQuery.h"
#include "Desktop/Captures/SharedThumbnails.h"
#include "Desktop/Pictures/HelperPictures.h"
#include "Desktop/Time/SystemClock.h"
#include "NotchKit/Tools/Captures/CapturesModel.h"
#include "Surroundings.h"
#include "Table.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <ctime>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr int kPictures = 20'000;
constexpr int kStarts = 9;
constexpr int kShots = 15;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "CaptureBenchmark: %s\n", what);
    std::exit(2);
}

double milliseconds(const QElapsedTimer &timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

/// Runs the event loop until the condition holds, and gives the longest time in which it could not run.
template <typename Condition>
double runUntil(Condition condition, std::chrono::milliseconds longest = 20s)
{
    QElapsedTimer whole;
    QElapsedTimer step;
    double gap = 0;
    whole.start();
    while (!condition()) {
        if (whole.hasExpired(longest.count()))
            fail("nothing happens");
        QEventLoop loop;
        step.start();
        QTimer::singleShot(1ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
        gap = std::max(gap, milliseconds(step) - 1);
    }
    return gap;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        fail("a picture cannot be written");
}

QByteArray encoded(QSize size, const char *format, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(seed * 37 % 360, 80, 200));
    QPainter painter(&image);
    for (int line = 0; line < size.height() / 24; ++line)
        painter.drawText(10, 20 + 24 * line, QString(160, QChar('a' + (line + seed) % 26)));
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

/// Photographs, pictures whose names tell nothing, and one screenshot among ten.
void makePictures(const QString &folder)
{
    const QByteArray jpeg = encoded({64, 48}, "jpg", 1);
    const QByteArray png = encoded({64, 48}, "png", 2);
    for (int i = 0; i < kPictures; ++i) {
        const QString number = QString::number(i);
        if (i % 10 == 0)
            write(folder + QStringLiteral("/Screenshot_20261121_%1.png").arg(i, 6, 10, QLatin1Char('0')),
                  png);
        else if (i % 2 == 0)
            write(folder + QStringLiteral("/drawing ") + number + QStringLiteral(".png"), png);
        else
            write(folder + QStringLiteral("/IMG_") + number + QStringLiteral(".jpg"), jpeg);
    }
}

void measureStart(Table &table, CapturesModel &model)
{
    std::vector<double> times;
    double gap = 0;
    for (int i = 0; i < kStarts; ++i) {
        QElapsedTimer timer;
        timer.start();
        model.start();
        gap = std::max(gap, runUntil([&] { return !model.items().isEmpty(); }));
        times.push_back(milliseconds(timer));
        runUntil([&] { return model.thumbnails().size() == CapturesModel::kMostItems; });
        if (i + 1 < kStarts)
            model.stop();
    }
    table.add({"First gathering among 20,000 pictures", median(times), 500, "ms", ""});
    Table::note("  longest", quantile(times, 1), "ms");
    Table::note("  longest gap of the main thread meanwhile", gap, "ms", "noisy");
}

double processorMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void measureWatch(Table &table)
{
    constexpr auto kTime = 10s;
    QEventLoop loop;
    QTimer::singleShot(kTime, &loop, &QEventLoop::quit);
    const double before = processorMilliseconds();
    loop.exec();
    const double share =
        (processorMilliseconds() - before) / std::chrono::duration<double, std::milli>(kTime).count();
    table.add({"Watching them, nothing happening", share * 100, 0.05, "% core", ""});
}

void measureShots(const QString &folder, const CapturesModel &model)
{
    std::vector<double> found;
    std::vector<double> shown;
    double gap = 0;
    for (int i = 0; i < kShots; ++i) {
        const QString path = folder + QStringLiteral("/Screenshot_new_%1.png").arg(i);
        write(path, encoded({1920, 1080}, "png", i)); // closed on return
        QElapsedTimer timer;
        timer.start();
        gap = std::max(gap, runUntil([&] { return model.fresh() && model.fresh()->id == path; }));
        found.push_back(milliseconds(timer));
        gap = std::max(gap, runUntil([&] { return model.thumbnails().contains(path); }));
        shown.push_back(milliseconds(timer));
    }
    Table::note("A saved 1920 × 1080 screenshot to its announcement", median(found), "ms");
    Table::note("  to its thumbnail", median(shown), "ms");
    Table::note("  longest", quantile(shown, 1), "ms");
    Table::note("  longest gap of the main thread meanwhile", gap, "ms", "noisy");
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(name, QFile::encodeName(home.filePath(QString::fromLatin1(name))));
    const Surroundings surroundings(argc, argv);
    const QString pictures = home.filePath(QStringLiteral("Pictures"));
    QDir().mkpath(pictures);
    makePictures(pictures);

    SystemClock clock;
    HubParts parts(clock);
    FolderCaptureQuery query(parts.defaults);
    SharedThumbnails thumbnails(std::make_shared<HelperPictures>(QStringLiteral(KESTRUNE_READER)));
    CapturesModel model(parts.settings, clock, query, thumbnails, parts.pasteboard, parts.workspace,
                        Fakes::pictures());
    Table table;
    measureStart(table, model);
    measureWatch(table);
    measureShots(pictures, model);
    return table.exitStatus();
}
