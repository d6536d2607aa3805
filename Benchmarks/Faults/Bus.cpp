// Takes the session bus away from the program and gives it back; then the display.

#include "Program.h"
#include "Scenario.h"
#include "Store.h"

#include "EndToEnd/Stage.h"

namespace Faults {

namespace {

constexpr qint64 kLongest = 10'000; // ms

/// A bus that can be started again under the same address.
class LastingBus
{
public:
    explicit LastingBus(Session &session)
        : m_environment(session.environment())
        , m_configuration(m_environment.value(u"HOME"_s) + u"/lasting-bus.conf"_s)
    {
        const QString address = u"unix:path="_s + m_environment.value(u"XDG_RUNTIME_DIR"_s) + u"/bus"_s;
        const QString text = uR"(<busconfig><type>session</type><listen>%1</listen><auth>EXTERNAL</auth>
            <policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
            <allow own="*"/></policy></busconfig>)"_s;
        writeFile(m_configuration, text.arg(address).toUtf8());
        session.environment().insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    }

    bool start()
    {
        m_daemon = std::make_unique<ChildProcess>(m_environment);
        return m_daemon->launch(u"dbus-daemon"_s,
                                {u"--config-file"_s, m_configuration, u"--print-address"_s, u"--nofork"_s}) &&
               waitUntil([this] { return m_daemon->canReadLine(); });
    }
    void kill() { m_daemon->killNow(); }

private:
    QProcessEnvironment m_environment;
    QString m_configuration;
    std::unique_ptr<ChildProcess> m_daemon;
};

bool answers(const Session &session) { return session.command({u"status"_s, u"--json"_s}).status == 0; }

/// Without the bus the notch still opens and what is typed is kept.
void withoutBus(Outcome &outcome)
{
    Stage stage(Stage::Plan{});
    Session &session = stage.session;
    LastingBus bus(session);
    session.setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
    Program program(session);
    if (!bus.start() || !program.launch() || !waitUntil([&] { return answers(session); })) {
        outcome.fault(u"the program did not start"_s);
        return;
    }
    session.set(u"hoverDelay"_s, u"0"_s);
    bus.kill();
    QTest::qWait(1000);
    if (!program.isRunning()) {
        outcome.fault(u"it ended with its bus"_s);
        return;
    }
    if (!stage.openByHover() || !stage.leave())
        outcome.fault(u"the notch does not open without a bus"_s);
    bus.start();
    const qint64 time = timeUntil([&] { return answers(session); }, kLongest);
    outcome.figure(u"reached over the next bus"_s, time < 0 ? u"no"_s : u"after %1 ms"_s.arg(time));
    if (!program.isRunning())
        outcome.fault(u"it ended when the bus came back"_s);
}

/// The program ends with its display; nothing is lost.
void withoutDisplay(Chance &chance, Outcome &outcome)
{
    Session session;
    VirtualDisplay display(VirtualDisplay::Server::Plain, {1280, 800}, session.environment());
    session.environment().insert(u"DISPLAY"_s, display.name());
    Program program(session);
    const QString text = QString::number(chance.between(0, 1'000'000));
    if (!program.start() || !program.set(u"note"_s, text)) {
        outcome.fault(u"the program did not start"_s);
        return;
    }
    display.killServer();
    const qint64 time = timeUntil([&] { return !program.isRunning(); }, kLongest);
    outcome.figure("ended without a display after", time, "ms");
    if (time < 0) {
        outcome.fault(u"it does not end without a display"_s);
        return;
    }
    outcome.figure("status", program.process().exitCode());
    if (program.process().exitStatus() != QProcess::NormalExit)
        outcome.fault(u"it crashed without a display"_s);
    const StoreCopy store(session.environment().value(u"XDG_CONFIG_HOME"_s) + u"/kestrune"_s);
    const QString note = session.command({u"settings"_s, u"get"_s, u"note"_s}).output.trimmed();
    if (store.verdict() != "ok"_L1 || note != text)
        outcome.fault(u"the note is %1, not %2; the store: %3"_s.arg(note, text, store.verdict()));
}

} // namespace

Outcome bus(int count, Chance &chance)
{
    Outcome outcome;
    for (int i = 0; i < count; ++i) {
        withoutBus(outcome);
        withoutDisplay(chance, outcome);
    }
    return outcome;
}

} // namespace Faults
