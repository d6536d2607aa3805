// A day of the program in some minutes: its clocks run faster. It still sleeps as long as ever, so that each
// time it wakes some seconds of its day have gone by.

#include "Growth.h"

#include "EndToEnd/VirtualDisplay.h"
#include "EndToEnd/Waiting.h"
#include "Support/TestRegistry.h"
#include "Support/WebStandIn.h"

namespace Faults {

namespace {

constexpr int kSpeed = 120;
constexpr int kHour = 3600 * 1000 / kSpeed; // ms, as the next
constexpr int kLook = 60 * 1000 / kSpeed;
constexpr qint64 kMostGrowth = 4000; // Kilobytes.

/// Empty where the library is not installed.
QString fasterClock()
{
    const QStringList folders = QDir(u"/usr/lib"_s).entryList({u"*-linux-gnu*"_s}, QDir::Dirs);
    for (const QString &folder : folders) {
        const QString file = u"/usr/lib/%1/faketime/libfaketimeMT.so.1"_s.arg(folder);
        if (QFile::exists(file))
            return file;
    }
    return {};
}

/// Every hour somebody looks at what asks the network, a minute each.
void spendHour(const Program &program)
{
    const QStringList tools{u"weather"_s, u"stocks"_s, u"home"_s};
    for (const QString &tool : tools) {
        program.open(tool);
        QTest::qWait(kLook);
    }
    program.close();
    QTest::qWait(kHour - static_cast<int>(tools.size()) * kLook);
}

} // namespace

Outcome day(int count, Chance &)
{
    Outcome outcome;
    const QString clock = fasterClock();
    if (clock.isEmpty()) {
        outcome.leftOut(u"libfaketime is not installed"_s);
        return outcome;
    }
    const WebStandIn web([](const WebStandIn::Request &) { return WebStandIn::page(503, {}); });
    Session session;
    VirtualDisplay display(VirtualDisplay::Server::Plain, {1280, 800}, session.environment());
    session.setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
    for (const auto &[name, value] : {std::pair(u"weatherCity"_s, u"Here"_s),
                                      {u"weatherLatitude"_s, u"50"_s},
                                      {u"weatherLongitude"_s, u"10"_s}})
        session.set(name, value);
    auto &environment = session.environment();
    environment.insert(u"DISPLAY"_s, display.name());
    environment.insert(u"KESTRUNE_SERVICES"_s, u"http://127.0.0.1:%1"_s.arg(web.port()));
    environment.insert(u"LD_PRELOAD"_s, clock);
    environment.insert(u"FAKETIME"_s, u"+0 x%1"_s.arg(kSpeed));
    Program program(session);
    if (!program.start()) {
        outcome.fault(u"the program did not start"_s);
        return outcome;
    }
    Growth growth;
    for (int hour = 1; hour <= count && program.isRunning(); ++hour) {
        spendHour(program);
        if (hour == 1)
            growth.begin(program.holdings());
        tellProgress(hour, count);
    }
    if (!program.isRunning()) {
        outcome.fault(u"it ended with %1"_s.arg(program.process().exitCode()));
        return outcome;
    }
    outcome.figure("hours", count);
    outcome.figure("requests", web.log().size());
    const qint64 before = program.holdings().wakeUps;
    QTest::qWait(kHour);
    outcome.figure("wake-ups a real second, closed", 1000 * (program.holdings().wakeUps - before) / kHour);
    growth.end(program.holdings(), kMostGrowth, outcome);
    return outcome;
}

} // namespace Faults
