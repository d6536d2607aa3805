// A random user, who points, clicks, drags, scrolls and types over the notch for hours.

#include "Growth.h"
#include "Scripts.h"

#include "EndToEnd/Stage.h"

#include <QRegularExpression>

namespace Faults {

namespace {

constexpr int kLookEvery = 1000;        // Inputs.
constexpr qint64 kLongestAnswer = 5000; // ms
constexpr qint64 kLongestGap = 50;      // ms that the main thread computes without coming round.
constexpr qint64 kMostGrowth = 16'000;  // Kilobytes: what it typed and copied is kept.
constexpr int kWheelUp = 4;
constexpr int kWheelDown = 5;
constexpr QRect kArea(190, 0, 900, 360); // The open notch and a little more.

class Monkey
{
public:
    explicit Monkey(Chance &chance)
        : m_chance(chance)
        , m_stage(Stage::Plan{})
        , m_letters(addForeignKeys(m_stage.x))
        , m_program(m_stage.session)
    {
        m_input.emplace(m_stage.x);
    }

    Outcome run(int count);

private:
    void prepare();
    bool begin();
    void bringBackTheNotch();
    bool start();
    void act();
    void pause() { QTest::qWait(m_chance.between(0, 8)); }
    void hear();
    void hear(const QString &line);
    void askQuickly();
    bool look();
    bool restartAfterEnd();
    Holdings atRest();

    void openTool();
    void openSettings();
    void pressHotKey();
    void moveAbout();
    void click();
    void clickRight();
    void scroll();
    void drag();
    void type();
    void pressKeys();
    void pressWithControl();
    void leave();

    QPoint place()
    {
        return {m_chance.between(kArea.left(), kArea.right()), m_chance.between(kArea.top(), kArea.bottom())};
    }
    void move(QPoint to)
    {
        m_input->move(to);
        ++m_inputs;
    }
    void press(quint8 button)
    {
        m_input->pressButton(button);
        m_input->releaseButton(button);
        ++m_inputs;
    }
    void tap(xcb_keysym_t key)
    {
        m_input->tap(key);
        ++m_inputs;
    }

    Chance &m_chance;
    QTemporaryDir m_programs; ///< All that the program can start by name.
    Stage m_stage;
    std::vector<xcb_keysym_t> m_letters; ///< Of other scripts.
    Program m_program;
    std::optional<Input> m_input;
    Outcome m_outcome;
    std::map<QString, int> m_words; ///< What the program said on standard error, and how often.
    qint64 m_inputs = 0;
    qint64 m_longest = 0;         ///< ms
    int m_gaps = 0;               ///< Times that the main thread did not come round.
    qint64 m_longestGap = 0;      ///< ms
    qint64 m_longestComputed = 0; ///< ms, of one gap by the main thread itself.
    QString m_tools;              ///< All of them, as the setting has it.
    int m_quits = 0;
    int m_opened = 0; ///< Looks that found the notch open.
    int m_looks = 0;
    const bool m_tellGaps = qEnvironmentVariableIsSet("KESTRUNE_TELL_GAPS");
};

Outcome Monkey::run(int count)
{
    prepare();
    if (!begin())
        m_outcome.fault(u"the program did not start"_s);
    Growth growth;
    for (qint64 next = kLookEvery; m_inputs < count && m_program.isRunning();) {
        act();
        pause();
        if (!m_program.isRunning() && !restartAfterEnd())
            break;
        if (m_inputs < next)
            continue;
        next += kLookEvery;
        if (!look())
            break;
        if (!growth.hasBegun() && m_inputs >= count / 10)
            growth.begin(atRest());
        tellProgress(static_cast<int>(m_inputs / kLookEvery), count / kLookEvery);
    }
    m_outcome.figure("inputs", m_inputs);
    m_outcome.figure("open at looks", 100 * m_opened / std::max(1, m_looks), "%");
    if (growth.hasBegun() && m_program.isRunning())
        growth.end(atRest(), kMostGrowth, m_outcome);
    m_outcome.figure("longest answer", m_longest, "ms");
    m_outcome.figure("quit by itself", m_quits);
    hear();
    m_outcome.figure("gaps of the main thread", m_gaps);
    m_outcome.figure("longest gap", m_longestGap, "ms");
    m_outcome.limit("most computed in one", m_longestComputed, kLongestGap, "ms");
    m_outcome.figure("different warnings", static_cast<qint64>(m_words.size()));
    for (const auto &[words, times] : m_words)
        std::fprintf(stderr, "said %d times: %s\n", times, qPrintable(words));
    return m_outcome;
}

/// Nothing but the program itself is within reach; there is something to click on in the tools.
void Monkey::prepare()
{
    auto &environment = m_stage.session.environment();
    const QString opener = m_programs.filePath(u"xdg-open"_s);
    writeFile(opener, "#!/bin/sh\n");
    QFile::setPermissions(opener, QFile::ReadOwner | QFile::ExeOwner);
    environment.insert(u"PATH"_s, m_programs.path());
    environment.insert(u"QT_LOGGING_RULES"_s, u"kestrune.gaps.debug=true"_s);
    m_stage.session.setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
    const QDir home(environment.value(u"HOME"_s));
    QStringList shelf;
    for (const QString &name : {u"one.txt"_s, u"two.png"_s, u"three.pdf"_s}) {
        shelf.append(home.filePath(name));
        writeFile(shelf.last(), name == u"two.png"_s ? encoded(plainImage({300, 200})) : QByteArray("text"));
    }
    m_stage.session.set(
        u"shelfPaths"_s,
        QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(shelf)).toJson(QJsonDocument::Compact)));
}

/// What it changes in the settings must not keep the notch from it for the rest of the time.
void Monkey::bringBackTheNotch()
{
    for (const auto &[key, value] : {std::pair{u"openMode"_s, u"hover"_s},
                                     {u"hoverDelay"_s, u"0"_s},
                                     {u"showWithoutNotch"_s, u"true"_s},
                                     {u"shortcutEnabled"_s, u"true"_s},
                                     {u"tools"_s, m_tools}})
        m_program.set(key, value);
}

bool Monkey::begin()
{
    if (!start())
        return false;
    m_tools = m_program.setting(u"tools"_s).value_or(QString());
    bringBackTheNotch();
    for (const char *text : {"a text", "https://example.com/", "another text"}) {
        m_stage.session.copy(u"UTF8_STRING"_s, text);
        QTest::qWait(700); // The clipboard is looked at twice a second.
    }
    return true;
}

void Monkey::act()
{
    using Action = void (Monkey::*)();
    static constexpr std::pair<int, Action> kActions[] = {
        {40, &Monkey::click},     {20, &Monkey::moveAbout},  {12, &Monkey::type},
        {12, &Monkey::pressKeys}, {8, &Monkey::scroll},      {6, &Monkey::openTool},
        {5, &Monkey::drag},       {4, &Monkey::clickRight},  {4, &Monkey::pressWithControl},
        {3, &Monkey::leave},      {2, &Monkey::pressHotKey}, {1, &Monkey::openSettings}};
    int left = 0;
    for (const auto &[weight, action] : kActions)
        left += weight;
    left = m_chance.between(1, left);
    for (const auto &[weight, action] : kActions) {
        left -= weight;
        if (left <= 0)
            return (this->*action)();
    }
}

void Monkey::hear()
{
    for (const QString &line : m_program.takeWords())
        hear(line);
}

void Monkey::hear(const QString &line)
{
    static const QRegularExpression gap(u"^kestrune.gaps: \\D*(\\d+) ms, \\D*(\\d+) ms"_s);
    const QRegularExpressionMatch match = gap.match(line);
    if (!match.hasMatch()) {
        ++m_words[line];
        return;
    }
    ++m_gaps;
    m_longestGap = std::max(m_longestGap, match.captured(1).toLongLong());
    m_longestComputed = std::max(m_longestComputed, match.captured(2).toLongLong());
    if (m_tellGaps)
        std::fprintf(stderr, "after %lld inputs: %s\n", static_cast<long long>(m_inputs), qPrintable(line));
}

/// What its start takes is measured elsewhere.
bool Monkey::start()
{
    if (!m_program.start())
        return false;
    constexpr int kUntilStarted = 1000; // ms
    QTest::qWait(kUntilStarted);
    static_cast<void>(m_program.takeWords());
    return true;
}

/// How long the main loop takes to come round.
void Monkey::askQuickly()
{
    QElapsedTimer timer;
    timer.start();
    (void)m_program.setting(u"hoverDelay"_s);
    m_longest = std::max(m_longest, timer.elapsed());
}

bool Monkey::look()
{
    hear();
    QElapsedTimer timer;
    timer.start();
    const auto answer = m_stage.session.command({u"status"_s, u"--json"_s});
    const QJsonObject status = QJsonDocument::fromJson(answer.output.toUtf8()).object();
    ++m_looks;
    m_opened += status["anyExpanded"_L1].toBool() ? 1 : 0;
    bringBackTheNotch();
    if (answer.status == 0 && status["running"_L1].toBool() && timer.elapsed() <= kLongestAnswer)
        return true;
    if (!m_program.isRunning() && restartAfterEnd()) // In this very moment.
        return true;
    m_outcome.fault(
        u"after %1 inputs the status took %2 ms: %3"_s.arg(m_inputs).arg(timer.elapsed()).arg(answer.errors));
    return false;
}

bool Monkey::restartAfterEnd()
{
    hear();
    const bool quit =
        m_program.process().exitStatus() == QProcess::NormalExit && m_program.process().exitCode() == 0;
    m_quits += quit ? 1 : 0;
    if (!quit)
        m_outcome.fault(
            u"it ended after %1 inputs with %2"_s.arg(m_inputs).arg(m_program.process().exitCode()));
    return start();
}

/// Closed, and what it does for an open notch has ended.
Holdings Monkey::atRest()
{
    constexpr int kUntilEnded = 10'000; // ms
    m_stage.session.command({u"close"_s});
    m_input->move(Place::away);
    QTest::qWait(kUntilEnded);
    return m_program.holdings();
}

void Monkey::openTool()
{
    static const QStringList tools = m_stage.session.tools();
    if (!tools.isEmpty())
        m_program.open(m_chance.oneOf(tools));
    ++m_inputs;
    move(place());
    askQuickly();
}

void Monkey::openSettings()
{
    m_stage.session.command({u"settings"_s, u"open"_s});
    ++m_inputs;
    const QSize screen(m_stage.x.screen()->width_in_pixels, m_stage.x.screen()->height_in_pixels);
    for (int i = m_chance.between(1, 8); i > 0; --i) {
        move({m_chance.between(400, 880), m_chance.between(60, screen.height() - 60)});
        press(m_chance.percent(70) ? quint8{XCB_BUTTON_INDEX_1} : quint8{kWheelDown});
        pause();
    }
    tap(XK_Escape);
}

void Monkey::pressHotKey()
{
    m_input->hotKey();
    m_inputs += 4;
}

void Monkey::moveAbout()
{
    for (int i = m_chance.between(1, 5); i > 0; --i) {
        move(place());
        pause();
    }
}

void Monkey::click()
{
    move(place());
    for (int i = m_chance.percent(15) ? 2 : 1; i > 0; --i)
        press(XCB_BUTTON_INDEX_1);
    if (m_chance.percent(20))
        askQuickly();
}

void Monkey::clickRight()
{
    move(place());
    press(XCB_BUTTON_INDEX_3);
}

void Monkey::scroll()
{
    for (int i = m_chance.between(1, 6); i > 0; --i)
        press(m_chance.percent(50) ? kWheelUp : kWheelDown);
}

void Monkey::drag()
{
    move(place());
    m_input->pressButton();
    for (int i = m_chance.between(1, 8); i > 0; --i) {
        move(place());
        pause();
    }
    m_input->releaseButton();
    m_inputs += 2;
}

void Monkey::type()
{
    for (int i = m_chance.between(1, 12); i > 0; --i) {
        if (m_letters.empty() || m_chance.percent(60)) {
            m_input->type(QByteArray(1, static_cast<char>(m_chance.between('!', '~'))));
            ++m_inputs;
        } else {
            tap(m_chance.oneOf(m_letters));
        }
    }
}

void Monkey::pressKeys()
{
    static constexpr xcb_keysym_t keys[] = {XK_Tab,       XK_Tab,    XK_Return, XK_space, XK_Left,
                                            XK_Right,     XK_Up,     XK_Down,   XK_Home,  XK_End,
                                            XK_BackSpace, XK_Delete, XK_Prior,  XK_Next,  XK_Escape};
    for (int i = m_chance.between(1, 4); i > 0; --i)
        tap(m_chance.oneOf(keys));
}

void Monkey::pressWithControl()
{
    static constexpr xcb_keysym_t keys[] = {XK_a, XK_c,         XK_v,    XK_x,  XK_z,
                                            XK_y, XK_BackSpace, XK_Home, XK_End};
    m_input->pressKey(XK_Control_L);
    tap(m_chance.oneOf(keys));
    m_input->releaseKey(XK_Control_L);
}

void Monkey::leave()
{
    move(Place::away);
    QTest::qWait(m_chance.between(0, 700)); // It closes a quarter of a second later.
}

} // namespace

Outcome monkey(int count, Chance &chance) { return Monkey(chance).run(count); }

} // namespace Faults
