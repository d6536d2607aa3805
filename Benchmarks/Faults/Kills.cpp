// Ends the program as a power button would, at any moment of its starts and writes, and looks whether all
// that was written is there again.

#include "Program.h"
#include "Scenario.h"
#include "Store.h"

#include "EndToEnd/Stage.h"

#include <csignal>
#include <thread>

namespace Faults {

namespace {

constexpr int kLatest = 600; // ms after which a kill comes

/// Kills a process from another thread, so that it happens while something is asked of the process.
class Killer
{
public:
    Killer(qint64 process, int milliseconds)
        : m_thread([process, milliseconds] {
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
            ::kill(static_cast<pid_t>(process), SIGKILL);
        })
    {}

private:
    std::jthread m_thread;
};

/// What a setting must be after a restart: what was written last, or what was being written when the end
/// came.
struct Written
{
    QString completed = QStringLiteral("");
    std::optional<QString> inDoubt = {};

    bool allows(const QString &value) const { return value == completed || value == inDoubt; }
};

class Kills
{
public:
    explicit Kills(Chance &chance)
        : m_chance(chance)
        , m_stage(Stage::Plan{})
        , m_program(m_stage.session)
    {
        m_stage.session.setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
    }

    Outcome run(int count);

private:
    bool round();
    bool restart();
    void check();
    void checkNote();
    void checkStore();

    void writeSettings();
    bool writeOne();
    void typeNote();
    bool takeKeyboard();
    void copyClip();
    QString randomText(int most);
    int moment() { return m_chance.between(0, kLatest); }

    Chance &m_chance;
    Stage m_stage;
    Program m_program;
    Outcome m_outcome;
    std::map<QString, Written> m_written;
    Written m_note;        ///< `inDoubt` is all that was typed.
    QString m_clip;        ///< Of the copies that were stored the last one.
    qint64 m_settings = 0; ///< Of those that were completed.
    qint64 m_keys = 0;
    qint64 m_clips = 0;
    qint64 m_lost = 0;
    qint64 m_damaged = 0;
    qint64 m_slowest = 0;
    int m_copies = 0;
};

Outcome Kills::run(int count)
{
    int done = 0;
    while (done < count && round())
        tellProgress(++done, count);
    if (restart())
        check();
    else
        m_outcome.fault(u"the program did not start again"_s);
    m_outcome.figure("kills", done);
    m_outcome.figure("settings written", m_settings);
    m_outcome.figure("keys typed", m_keys);
    m_outcome.figure("copies kept", m_clips);
    m_outcome.figure("lost", m_lost);
    m_outcome.figure("damaged", m_damaged);
    m_outcome.figure("slowest restart", m_slowest, "ms");
    return m_outcome;
}

bool Kills::round()
{
    if (m_chance.percent(20)) { // While it starts.
        if (!m_program.launch())
            return false;
        const Killer killer(m_program.id(), moment());
        m_program.process().waitForFinished(-1);
    } else {
        if (!restart())
            return false;
        check();
        const int kind = m_chance.between(1, 100);
        if (kind <= 25)
            typeNote();
        else {
            if (kind <= 35)
                copyClip();
            writeSettings();
        }
    }
    checkStore();
    return true;
}

bool Kills::restart()
{
    QElapsedTimer timer;
    timer.start();
    const bool started = m_program.start();
    m_slowest = std::max(m_slowest, timer.elapsed());
    return started;
}

void Kills::check()
{
    for (auto &[key, written] : m_written) {
        const QString value = m_program.setting(key).value_or(u"no answer"_s);
        if (!written.allows(value)) {
            ++m_lost;
            m_outcome.fault(u"%1 is %2, not %3"_s.arg(key, value.left(80), written.completed.left(80)));
        }
        written = {value, {}};
    }
    checkNote();
    if (!m_clip.isEmpty() && !m_stage.session.copiedTexts().contains(m_clip)) {
        ++m_lost;
        m_outcome.fault(u"the copy %1 is lost"_s.arg(m_clip));
    }
}

void Kills::checkNote()
{
    const QString value = m_program.setting(u"note"_s).value_or(QString());
    const QString all = m_note.inDoubt.value_or(m_note.completed);
    if (!value.startsWith(m_note.completed) || !all.startsWith(value)) {
        ++m_lost;
        m_outcome.fault(u"the note is %1, not from %2 to %3"_s.arg(value, m_note.completed, all));
    }
    m_note = {value, {}};
}

/// The program does not run.
void Kills::checkStore()
{
    const StoreCopy store(m_stage.session.environment().value(u"XDG_CONFIG_HOME"_s) + u"/kestrune"_s);
    const QString verdict = store.verdict();
    if (verdict == "ok"_L1 && !store.hasDamagedCopies())
        return;
    ++m_damaged;
    m_outcome.fault(u"the store is damaged: %1"_s.arg(verdict));
}

void Kills::writeSettings()
{
    const Killer killer(m_program.id(), moment());
    while (writeOne()) {
    }
    m_program.process().waitForFinished(-1);
}

/// Whether it was completed.
bool Kills::writeOne()
{
    const QStringList keys{u"claudeBlockBudget"_s, u"prompterText"_s, u"weatherCity"_s, u"tickers"_s};
    const int kind = m_chance.between(0, static_cast<int>(keys.size()) - 1);
    const QString &key = keys.at(kind);
    QString value = randomText(kind == 1 ? 20'000 : 30);
    if (kind == 0)
        value = QString::number(m_chance.between(1, 1'000'000));
    if (kind == 3)
        value = u"[\"%1\"]"_s.arg(value.left(8).toUpper());
    auto found = m_written.find(key);
    if (found == m_written.end())
        found = m_written.insert({key, {m_program.setting(key).value_or(QString()), {}}}).first;
    found->second.inDoubt = value;
    if (!m_program.set(key, value))
        return false;
    found->second = {value, {}};
    ++m_settings;
    return true;
}

void Kills::typeNote()
{
    if (m_note.completed.size() > 300 && m_program.set(u"note"_s, QString()))
        m_note = {};
    m_program.open(u"note"_s);
    if (!takeKeyboard()) {
        m_outcome.fault(u"the note took no key within ten seconds"_s);
        m_program.process().killNow();
        return;
    }
    m_note.completed = m_program.setting(u"note"_s).value_or(QString());
    m_note.inDoubt = m_note.completed;
    const Killer killer(m_program.id(), moment());
    while (m_program.isRunning()) {
        const QString word = randomText(6);
        *m_note.inDoubt += word;
        m_stage.input.type(word.toLatin1());
        if (const auto said = m_program.setting(u"note"_s)) {
            m_keys += said->size() - m_note.completed.size();
            m_note.completed = *said;
        }
        m_program.process().waitForFinished(0);
    }
    m_stage.input.move(Place::away);
}

bool Kills::takeKeyboard()
{
    const QString before = m_program.setting(u"note"_s).value_or(QString());
    const auto takesKey = [&] {
        m_stage.input.click(Place::panel);
        m_stage.input.tap(XK_End);
        m_stage.input.type(".");
        QTest::qWait(150);
        return m_program.setting(u"note"_s) != before;
    };
    return waitUntil(takesKey, 10'000);
}

void Kills::copyClip()
{
    const QString text = u"copy %1"_s.arg(++m_copies);
    m_stage.session.copy(u"UTF8_STRING"_s, text.toLatin1());
    if (!waitUntil([&] { return m_stage.session.copiedTexts().value(0) == text; }, 10'000)) {
        m_outcome.fault(u"%1 was not stored within ten seconds"_s.arg(text));
        return;
    }
    m_clip = text;
    ++m_clips;
}

QString Kills::randomText(int most)
{
    QString text(m_chance.between(1, most), u'a');
    for (QChar &character : text)
        character = QChar(u'a' + m_chance.between(0, 25));
    return text;
}

} // namespace

Outcome kills(int count, Chance &chance) { return Kills(chance).run(count); }

} // namespace Faults
