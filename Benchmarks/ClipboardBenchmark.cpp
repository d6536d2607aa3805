// What the clipboard history costs: storing it, keeping pictures, showing a copy, and a program that copies
// and then hangs or sends far too much.

#include "App/PanelFactory.h"
#include "App/WindowSystems.h"
#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "Desktop/Time/SystemClock.h"
#include "Desktop/X11/X11Pasteboard.h"
#include "LoopWatch.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "NotchKit/Shell/NotchWindow.h"
#include "NotchKit/Tools/Clipboard/ClipboardModel.h"
#include "Surroundings.h"
#include "Table.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <fstream>

#include <malloc.h>

#include <xcb/xcb.h>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr int kWrites = 1000;
constexpr int kPictures = 60;
constexpr int kCopies = 24;
constexpr int kBurst = 100;

void pass(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

template <typename Condition>
bool waitFor(Condition condition, std::chrono::milliseconds longest = 20s)
{
    QElapsedTimer time;
    time.start();
    while (!condition()) {
        if (time.hasExpired(longest.count()))
            return false;
        pass(1ms);
    }
    return true;
}

double residentMegabytes()
{
    std::ifstream status("/proc/self/smaps_rollup");
    for (std::string name; status >> name;) {
        double kilobytes = 0;
        if (name == "Pss:" && status >> kilobytes)
            return kilobytes / 1024;
    }
    return 0;
}

/// Every copy of an item back stores the whole history: full texts of 60 items, and everyday ones.
void measureWrites(const char *name, qsizetype length)
{
    const QTemporaryDir folder;
    SqliteUserDefaults defaults(folder.filePath(QStringLiteral("defaults.sqlite")));
    ClipboardItems items;
    for (int i = 0; i < ClipboardModel::kMostItems; ++i)
        items.append({QUuid::createUuid(),
                      ClipboardItem::Kind::text,
                      QString(length, QChar('a' + i % 26)),
                      {},
                      QDateTime::currentDateTimeUtc(),
                      {}});
    defaults.setObject(QStringLiteral("notch.clipboardItems"), encodeClipboardItems(items));
    NotchSettings settings(defaults);
    SystemClock clock;
    Fakes::FakePasteboard pasteboard;
    ClipboardModel model(settings, defaults, clock, pasteboard, Fakes::pictures());
    std::vector<double> samples;
    for (int i = 0; i < kWrites; ++i) {
        QElapsedTimer time;
        time.start();
        model.copy(model.items().last());
        samples.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    Table::note(name, median(samples), "ms");
    Table::note("  worst one in a hundred", quantile(samples, 0.99), "ms");
}

/// A picture of a 4K screen: text, areas of one colour, a part like a photograph.
EncodedPicture screenshot(int seed, const char *format, const char *type)
{
    // Pictures of one size in a row would count as one copy.
    QImage image(3840, 2160 - seed % 2, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(seed * 6 % 360, 60, 240));
    QPainter painter(&image);
    painter.setFont(QFont(QStringLiteral("Inter"), 18));
    for (int line = 0; line < 60; ++line)
        painter.drawText(60, 60 + line * 34, QString(180, QChar('a' + (line * 7 + seed) % 26)));
    painter.end();
    for (int y = 0; y < 700; ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y + 1300));
        for (int x = 0; x < 1200; ++x)
            row[x + 2400] = qRgb(x * y % 251, (x + seed * y) % 253, (x ^ y) & 255);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    bytes.squeeze();
    return {bytes, QString::fromLatin1(type)};
}

/// What sixty of them take may be `most` MB more than their bytes as received times `kept`.
struct PictureBudget
{
    double kept;
    double most;
};

void measurePictures(Table &table, const char *format, const char *type, PictureBudget budget)
{
    SystemClock clock;
    HubParts parts(clock);
    ClipboardModel model(parts.settings, parts.defaults, clock, parts.pasteboard, Fakes::pictures());
    const double before = residentMegabytes();
    double received = 0;
    for (int i = 0; i < kPictures; ++i) {
        parts.pasteboard.offer(screenshot(i, format, type));
        received += static_cast<double>(parts.pasteboard.encoded->data.size()) / 1024 / 1024;
        bool recorded = false;
        const auto watch =
            QObject::connect(&model, &ClipboardModel::itemsChanged, &model, [&] { recorded = true; });
        model.poll();
        waitFor([&] { return recorded; });
        QObject::disconnect(watch);
    }
    table.add(
        {"Sixty 4K pictures copied as " + QString::fromLatin1(format).toUpper().toStdString() + ", memory",
         residentMegabytes() - before,
         received * budget.kept + budget.most,
         "MB",
         {}});
    Table::note("  as received", received, "MB");
    Table::note("  pictures kept", static_cast<double>(model.items().size()), "");
}

/// From another program's copy to the frame that shows it in the open pane.
void measureCaptures(Table &table, NotchServices &services, NotchScreenModel &model, QQuickWindow &window)
{
    model.setSelected(NotchTool::clipboard);
    model.setExpanded(true);
    services.setAnyExpanded(true);
    services.show(NotchTool::clipboard);
    pass(1500ms);
    X11Pasteboard other;
    pass(200ms);
    std::vector<double> samples;
    QElapsedTimer time;
    bool recorded = false;
    bool drawn = false;
    QObject::connect(services.model<ClipboardModel>(), &ClipboardModel::itemsChanged, &window,
                     [&] { recorded = true; });
    const auto swapped = [&] { drawn = recorded; };
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, swapped, Qt::DirectConnection);
    for (int i = 0; i < kCopies; ++i) {
        pass(std::chrono::milliseconds(37 * i % 500));
        recorded = drawn = false;
        time.start();
        other.write(QStringLiteral("copy number %1").arg(i));
        if (waitFor([&] { return drawn; }))
            samples.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
    }
    table.add({"Copy to visible row, median", median(samples), 30, "ms", "noisy: wall time"});
    Table::note("  longest", quantile(samples, 1), "ms");
}

/// A program that copies a hundred times in a second.
void measureBurst(Table &table, ClipboardModel &model)
{
    model.clear();
    X11Pasteboard other;
    pass(200ms);
    QStringList seen;
    const auto watch = QObject::connect(&model, &ClipboardModel::itemsChanged, &model, [&] {
        if (!model.items().isEmpty())
            seen.append(model.items().first().text);
    });
    for (int i = 0; i < kBurst; ++i) {
        other.write(QStringLiteral("burst %1").arg(i));
        pass(10ms);
    }
    pass(500ms);
    QObject::disconnect(watch);
    table.add({"Of a hundred copies in a second, missed", static_cast<double>(kBurst - seen.size()), 0, "",
               "noisy: of a busy machine"});
}

/// A program that owns the clipboard and never answers.
class SilentOwner
{
public:
    void copy()
    {
        const xcb_window_t window = xcb_generate_id(m_x.get());
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_x.get())).data;
        xcb_create_window(m_x.get(), 0, window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0,
                          0, nullptr);
        const auto cookie = xcb_intern_atom(m_x.get(), false, 9, "CLIPBOARD");
        auto *reply = xcb_intern_atom_reply(m_x.get(), cookie, nullptr);
        xcb_set_selection_owner(m_x.get(), window, reply->atom, XCB_CURRENT_TIME);
        std::free(reply);
        xcb_flush(m_x.get());
    }

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_x{xcb_connect(nullptr, nullptr),
                                                                     &xcb_disconnect};
};

void measureGaps(Clock &clock)
{
    LoopWatch watch(clock);
    pass(4s);
    Table::note("Longest gap of the main thread, clipboard at rest", watch.takeLongest(), "ms");
    SilentOwner silent;
    silent.copy();
    pass(4s);
    Table::note("  with an owner that never answers", watch.takeLongest(), "ms");
    X11Pasteboard other;
    const EncodedPicture huge{QByteArray(100 * 1024 * 1024, 'x'), QString::fromLatin1(Pasteboard::kPng)};
    const EncodedPicture picture = screenshot(1, "tiff", Pasteboard::kTiff);
    pass(200ms);
    watch.takeLongest();
    other.write(huge);
    pass(4s);
    Table::note("  with an owner that sends 100 MB", watch.takeLongest(), "ms");
    other.write(picture);
    pass(4s);
    Table::note("  while a 4K TIFF picture is read", watch.takeLongest(), "ms");
}

} // namespace

int main(int argc, char *argv[])
{
    mallopt(M_MMAP_THRESHOLD, 512 * 1024); // as the program has it
    const Surroundings surroundings(argc, argv);
    registerViews();
    measureWrites("Storing 60 everyday texts of 200 characters", 200);
    measureWrites("Storing 60 texts of 4,000 characters", 4000);

    Table table;
    {
        SystemClock clock;
        X11Pasteboard pasteboard;
        HubParts parts(clock);
        NotchServices services(parts.settings, NotchBranding::fennivar(),
                               parts.platform({.pasteboard = &pasteboard}));
        QQmlEngine engine;
        const auto windows = chooseWindowSystem()->make(parts.defaults);
        PanelFactory panels(engine, *windows);
        const NotchGeometry geometry(twoDisplays().constFirst());
        NotchScreenModel model(geometry);
        const auto panel = panels.create(geometry.panelFrame(), model, services);
        auto *window = qobject_cast<QQuickWindow *>(QGuiApplication::allWindows().value(0));
        panel->orderFront();
        services.start();
        measureCaptures(table, services, model, *window);
        measureBurst(table, *services.model<ClipboardModel>());
        measureGaps(clock);
    }
    // Packed already, so that they are kept as they came.
    measurePictures(table, "png", Pasteboard::kPng, {.kept = 1, .most = 5});
    measurePictures(table, "tiff", Pasteboard::kTiff, {.kept = 0, .most = 120});
    return table.exitStatus();
}
