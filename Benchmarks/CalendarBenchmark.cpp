// What a refresh of ten calendars with a thousand events each costs: the first one, which reads every file,
// those after it, and how long the pointer cannot be polled meanwhile.

#include "Desktop/Calendars/DesktopCalendars.h"
#include "Desktop/Time/SystemClock.h"
#include "LoopWatch.h"
#include "NotchKit/Tools/Calendar/CalendarModel.h"
#include "Surroundings.h"
#include "Table.h"
#include "Timing.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr int kCalendars = 10;
constexpr int kEvents = 1000; // In each.
constexpr int kRounds = 11;

/// Every tenth repeats each week, the others are spread over two years around now.
QByteArray item(int number)
{
    const QDateTime start = QDateTime::currentDateTimeUtc().addSecs((number * 37 % 17520 - 8760) * 3600LL);
    const QByteArray stamp = start.toString(QStringLiteral("yyyyMMdd'T'HH0000")).toLatin1();
    const QByteArray name = QByteArray::number(number);
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Benchmark//EN\r\nBEGIN:VEVENT\r\nUID:" + name +
           "@example\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:Meeting number " + name +
           "\r\nLOCATION:Some room\\, second floor\r\nDESCRIPTION:" + QByteArray(200, 'x') +
           "\r\nDTSTART;TZID=Europe/Berlin:" + stamp + "\r\nDURATION:PT1H\r\n" +
           (number % 10 == 0 ? "RRULE:FREQ=WEEKLY\r\n" : "") + "END:VEVENT\r\nEND:VCALENDAR\r\n";
}

void fill(const QString &root)
{
    for (int calendar = 0; calendar < kCalendars; ++calendar) {
        const QString folder = root + QStringLiteral("/calendar %1").arg(calendar);
        QDir().mkpath(folder);
        for (int i = 0; i < kEvents; ++i) {
            QFile file(folder + QStringLiteral("/%1.ics").arg(i));
            const QByteArray text = item(calendar * kEvents + i);
            if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
                std::exit(2);
        }
    }
}

/// The store, with its last answers in view.
class WatchedStore : public CalendarStore
{
public:
    explicit WatchedStore(CalendarStore &store)
        : m_store(store)
    {}
    QFuture<CalendarAccess> access(CalendarEntity entity) override { return m_store.access(entity); }
    QFuture<bool> requestAccess(CalendarEntity entity) override { return m_store.requestAccess(entity); }
    QFuture<std::optional<Events>> events(const QDateTime &from, const QDateTime &to) override
    {
        return *(lastEvents = m_store.events(from, to));
    }
    QFuture<std::optional<Tasks>> incompleteReminders() override
    {
        return *(lastTasks = m_store.incompleteReminders());
    }
    QFuture<QStringList> unread() override { return m_store.unread(); }
    QFuture<bool> complete(const QString &id) override { return m_store.complete(id); }

    std::optional<QFuture<std::optional<Events>>> lastEvents; ///< Nothing until it is asked for.
    std::optional<QFuture<std::optional<Tasks>>> lastTasks;

private:
    CalendarStore &m_store;
};

/// Refreshes and runs the event loop until both answers are there; milliseconds.
double refresh(CalendarModel &model, WatchedStore &store)
{
    QElapsedTimer time;
    time.start();
    store.lastEvents.reset();
    store.lastTasks.reset();
    model.refresh();
    const auto isAnswered = [](const auto &future) { return future && future->isFinished(); };
    while (!isAnswered(store.lastEvents) || !isAnswered(store.lastTasks)) {
        if (time.hasExpired(20'000)) {
            std::fprintf(stderr, "CalendarBenchmark: no events come\n");
            std::exit(2);
        }
        pass(1ms);
    }
    const double taken = static_cast<double>(time.nsecsElapsed()) / 1e6;
    pass(5ms); // The model takes them in.
    return taken;
}

} // namespace

int main(int argc, char *argv[])
{
    const Surroundings surroundings(argc, argv);
    const QTemporaryDir root;
    fill(root.path());

    SystemClock clock;
    HubParts parts(clock);
    parts.defaults.setObject(DesktopCalendars::sourceKey(), QStringLiteral("folders"));
    parts.defaults.setObject(DesktopCalendars::folderKey(), root.path());
    DesktopCalendars desktop(QDBusConnection(QString()), parts.defaults, QStringLiteral(KESTRUNE_READER));
    WatchedStore store(desktop);
    NotchServices services(parts.settings, NotchBranding::fennivar(), parts.platform({.calendars = &store}));
    services.start();
    services.setAnyExpanded(true);
    LoopWatch watch(clock);
    pass(1s);

    CalendarModel &model = *services.model<CalendarModel>();
    watch.takeLongest();
    const double first = refresh(model, store);
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i)
        times.push_back(refresh(model, store));
    const double gap = watch.takeLongest();
    if (model.items().size() != CalendarModel::kMostItems)
        return 2;
    Table table;
    table.add({"First refresh of 10,000 events in 10 calendars", first, 1000, "ms", "noisy"});
    Table::note("  one after it, nothing changed", median(times), "ms");
    Table::note("  longest gap of the main thread", gap, "ms");
    return table.exitStatus();
}
