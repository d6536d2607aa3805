#pragma once

#include "EndToEnd/Session.h"
#include "EndToEnd/Waiting.h"
#include "EndToEnd/Wayland/Compositor.h"
#include "EndToEnd/Wayland/WaylandInput.h"
#include "Support/TestRegistry.h"

#include <initializer_list>

/// Where things are on a display of 1280 x 800, from the top left.
namespace Place {

constexpr QPoint notch(640, 16);      ///< Inside the closed notch.
constexpr QPoint panel(640, 200);     ///< Inside the open notch only.
constexpr QPoint panelEdge(640, 324); ///< Inside the fully open notch only.
constexpr QPoint beside(220, 200);    ///< Inside the panel's surface, outside the open notch.
constexpr QPoint below(640, 60);      ///< Outside the closed notch.
constexpr QPoint away(640, 600);      ///< Outside the surface.
constexpr QPoint pin(938, 20);
constexpr QPoint secondCopy(480, 137); ///< The second copy in the clipboard's pane.
constexpr QPoint onlyTile(640, 120);   ///< The one file on the shelf.

} // namespace Place

/// A window of another program on the same compositor; it covers the display and says what happens to it.
class OtherProgram : public ChildProcess
{
    Q_OBJECT

public:
    /// `platform` is Qt's.
    OtherProgram(QProcessEnvironment environment, const QString &platform, const QStringList &arguments)
        : ChildProcess(environment)
    {
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
        setProcessEnvironment(environment);
        setProcessChannelMode(QProcess::SeparateChannels);
        launch(QStringLiteral(KESTRUNE_OTHER_PROGRAM), arguments);
    }

    /// How often it has said `line`.
    qsizetype count(const QString &line)
    {
        m_said += QString::fromUtf8(readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        return m_said.count(line);
    }
    bool hasFocus() { return count(QStringLiteral("focus")) > count(QStringLiteral("no focus")); }

private:
    QStringList m_said;
};

/// One test's desktop: session, compositor, another program's window, and Kestrune once `run` was called.
struct WaylandStage
{
    using Settings = std::initializer_list<std::pair<const char *, const char *>>;

    /// A guest runs on X11: Kestrune, or the other program.
    struct Desktop
    {
        Compositor::Kind kind;
        bool guest = false;
        bool otherIsGuest = false;
        int scale = 1;
    };

    WaylandStage(Desktop desktop, const QStringList &otherProgram);
    ~WaylandStage() { session.endProgram(); }
    Q_DISABLE_COPY_MOVE(WaylandStage)

    /// Starts the program, which has been started before, with these settings; the pointer is elsewhere.
    bool run(Settings settings = {}, int notches = 1);

    /// Puts the pointer over the other window, for it to be moved like a mouse from there.
    void placePointer();

    bool waitOpen(int display = 0) const;
    /// Until it is open and has seen the pointer inside: one that did not does not close when that leaves.
    bool waitVisited(int display = 0) const;
    bool waitClosed(int display = 0) const;

    /// Drags the other program's file onto the closed notch, and lets go of it over the shelf.
    bool dragOntoShelf();

    /// Whether its picture shows the open notch; yes where nobody can look.
    bool looksOpen() const;

    /// Whether the desktop has given the program its hot key, where it is one that gives keys.
    bool hasHotKey() const;

    /// Clicks there and says whether the other program got it.
    bool clickReachesOther(QPoint place);

    Session session;
    Compositor compositor;
    WaylandInput input;
    OtherProgram other;
};

/// Base of test classes: a fresh stage for every test function, with the compositor of its row.
class WaylandStageTest : public QObject
{
    Q_OBJECT

protected:
    /// The rows of a test: every compositor that Kestrune is a client of, where it was built to be one.
    static void compositors(bool otherIsGuest = false);
    /// And those that it is a guest of.
    static void desktops();
    static WaylandStage::Desktop desktop();

    WaylandStage &setStage(const QStringList &otherProgram)
    {
        return m_stage.emplace(desktop(), otherProgram);
    }
    WaylandStage &stage() { return m_stage ? *m_stage : setStage({QStringLiteral("maximized")}); }
    Session &session() { return stage().session; }
    WaylandInput &input() { return stage().input; }

private Q_SLOTS:
    void cleanup() { m_stage.reset(); }

private:
    std::optional<WaylandStage> m_stage;
};
