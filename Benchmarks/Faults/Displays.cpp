// Plugs displays in and out and gives them other sizes, and looks whether each has its notch.

#include "Growth.h"

#include "EndToEnd/Stage.h"

#include <array>

namespace Faults {

namespace {

const QStringList kModes{u"1600x1200"_s, u"1280x960"_s, u"1024x768"_s, u"800x600"_s};

constexpr qint64 kMostGrowth = 3000; // Kilobytes.
constexpr qint64 kLongest = 5000;    // ms until a change counts as not noticed

/// What the server was told of an output.
struct Output
{
    QString name;
    QString mode = {}; ///< Empty where nothing is plugged in.
};

class Displays
{
public:
    explicit Displays(Chance &chance)
        : m_chance(chance)
        , m_stage({.server = VirtualDisplay::Server::Outputs, .size = {1600, 1200}})
        , m_program(m_stage.session)
    {}

    Outcome run(int count);

private:
    void once();
    bool prepare();
    void change();
    bool apply();
    bool randr(const QStringList &arguments);
    bool isRight() const;
    QString wanted() const;
    QString seen() const;
    qsizetype plugged() const
    {
        return std::ranges::count_if(m_outputs, [](const Output &output) { return !output.mode.isEmpty(); });
    }

    Chance &m_chance;
    Stage m_stage;
    Program m_program;
    qint64 m_wrong = 0;
    qint64 m_longest = 0; ///< ms
    std::array<Output, 3> m_outputs{{{u"DUMMY0"_s, kModes.first()}, {u"DUMMY1"_s}, {u"DUMMY2"_s}}};
};

Outcome Displays::run(int count)
{
    Outcome outcome;
    if (!prepare()) {
        outcome.fault(u"the displays or the program did not start"_s);
        return outcome;
    }
    Growth growth;
    for (int done = 1; done <= count && m_program.isRunning(); ++done) {
        once();
        if (done == std::max(1, count / 10))
            growth.begin(m_program.holdings());
        tellProgress(done, count);
    }
    outcome.figure("changes", count);
    outcome.limit("wrong", m_wrong, 0);
    outcome.figure("longest until right", m_longest, "ms");
    if (m_program.isRunning())
        growth.end(m_program.holdings(), kMostGrowth, outcome);
    else
        outcome.fault(u"the program ended"_s);
    for (const QString &line : m_program.takeWords())
        outcome.fault(u"it said: "_s + line);
    return outcome;
}

void Displays::once()
{
    const QString before = wanted();
    change();
    const qint64 time = apply() ? timeUntil([this] { return isRight(); }, kLongest) : -1;
    m_longest = std::max(m_longest, time);
    if (time >= 0)
        return;
    ++m_wrong;
    std::fprintf(stderr, "from %s to %s: the notches are at %s\n", qPrintable(before), qPrintable(wanted()),
                 qPrintable(seen()));
}

bool Displays::prepare()
{
    for (const Output &output : m_outputs) {
        for (const QString &mode : kModes)
            randr({u"--addmode"_s, output.name, mode}); // Where it is not known yet.
    }
    m_stage.session.setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
    m_stage.input.move(Place::away);
    return apply() && m_program.start() && m_program.set(u"allDisplays"_s, u"true"_s);
}

/// At least one stays plugged in.
void Displays::change()
{
    for (const QString before = wanted(); wanted() == before;) {
        Output &output = m_chance.oneOf(m_outputs);
        const bool unplug = !output.mode.isEmpty() && plugged() > 1 && m_chance.percent(50);
        output.mode = unplug ? QString() : m_chance.oneOf(kModes);
    }
}

/// Side by side, in their order.
bool Displays::apply()
{
    QStringList arguments;
    int x = 0;
    for (const Output &output : m_outputs) {
        arguments << u"--output"_s << output.name;
        if (output.mode.isEmpty()) {
            arguments << u"--off"_s;
            continue;
        }
        arguments << u"--mode"_s << output.mode << u"--pos"_s << u"%1x0"_s.arg(x);
        x += output.mode.section(u'x', 0, 0).toInt();
    }
    return randr(arguments);
}

bool Displays::randr(const QStringList &arguments)
{
    ChildProcess process(m_stage.session.environment());
    return process.launch(u"xrandr"_s, arguments) && process.waitForFinished() && process.exitCode() == 0;
}

/// Also on the screen: no window of a notch that has gone is left.
bool Displays::isRight() const
{
    return seen() == wanted() && m_stage.x.topWindows({880, 390}).size() == plugged();
}

QString Displays::wanted() const
{
    QStringList all;
    int x = 0;
    for (const Output &output : m_outputs) {
        if (output.mode.isEmpty())
            continue;
        all.append(u"%1+%2"_s.arg(output.mode).arg(x));
        x += output.mode.section(u'x', 0, 0).toInt();
    }
    return all.join(u' ');
}

QString Displays::seen() const
{
    std::map<int, QString> all;
    for (const QJsonValue display : m_program.status().value("displays"_L1).toArray()) {
        const QJsonValue frame = display["frame"_L1];
        const int x = frame["x"_L1].toInt();
        all[x] += u"%1x%2+%3"_s.arg(frame["width"_L1].toInt()).arg(frame["height"_L1].toInt()).arg(x);
    }
    QStringList texts;
    for (const auto &[x, text] : all)
        texts.append(text);
    return texts.join(u' ');
}

} // namespace

Outcome displays(int count, Chance &chance) { return Displays(chance).run(count); }

} // namespace Faults
