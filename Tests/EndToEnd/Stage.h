#pragma once

#include "EndToEnd/Input.h"
#include "EndToEnd/Session.h"
#include "EndToEnd/TestWindow.h"
#include "EndToEnd/VirtualDisplay.h"
#include "EndToEnd/Waiting.h"
#include "EndToEnd/X11.h"
#include "Support/TestRegistry.h"

#include <initializer_list>

/// Where things are on a display of 1280 x 800 pixels at scale 1, from the top left.
namespace Place {

constexpr QPoint notch(640, 16);        ///< Inside the closed notch.
constexpr QPoint firstOpened(640, 60);  ///< Black as soon as the notch begins to open.
constexpr QPoint panel(640, 200);       ///< Inside the open notch only, in the middle of the pane.
constexpr QPoint panelEdge(640, 324);   ///< Inside the fully open notch only.
constexpr QPoint away(640, 600);        ///< Outside the open notch and its window.
constexpr QPoint pin(938, 20);          ///< The pin button in the header.
constexpr QPoint settings(974, 20);     ///< The settings button beside it.
constexpr QPoint firstPreset(520, 169); ///< The shortest countdown in the timer's pane.
constexpr QRect toolRow(290, 304, 530, 1);

} // namespace Place

/// One test's desktop with everything on it: session, display, window manager, a window of another program
/// that covers the display, pointer and keyboard, and the program once `run` has been called.
struct Stage
{
    struct Plan
    {
        VirtualDisplay::Server server = VirtualDisplay::Server::Plain;
        QSize size{1280, 800};
        QString windowManager = QStringLiteral("openbox");
        bool compositor = false;
    };
    using Settings = std::initializer_list<std::pair<const char *, const char *>>;

    explicit Stage(const Plan &plan);
    ~Stage() { session.endProgram(); } // before its display
    Q_DISABLE_COPY_MOVE(Stage)

    /// Starts the program, which has been started before, with these settings; the pointer is elsewhere.
    bool run(Settings settings = {}, const QStringList &arguments = {});

    /// Whether the picture at `place` is something else than the window beneath.
    bool covered(QPoint place) const { return x.pixel(place) != beneath.colour(); }
    bool looksOpen() const { return covered(Place::panelEdge); }
    bool looksClosed() const { return !covered(Place::firstOpened); }

    /// Opens with the hot key, by hover, or closes, and waits until it has been done and drawn.
    bool openByHotKey();
    bool openByHover();
    bool waitClosed() const;
    /// The pointer goes elsewhere, which closes it.
    bool leave();

    /// Clicks there and says whether the window beneath got the click.
    bool clickReachesBeneath(QPoint place);

    /// Whether a click there does not reach the window beneath within half a second.
    bool clickIsKept(QPoint place);

    /// Shows the tool's pane without opening the notch for the keyboard: the next opening finds it.
    bool choose(const QString &tool);

    Session session;
    VirtualDisplay display;
    X11 x;
    Input input;
    TestWindow beneath;

private:
    static QString startDesktop(VirtualDisplay &display, const Plan &plan);
};

/// Base of the test classes: a fresh stage for every test function.
class StageTest : public QObject
{
    Q_OBJECT

protected:
    /// The one that the test has set, or else a plain one.
    Stage &stage() { return m_stage ? *m_stage : setStage({}); }
    Session &session() { return stage().session; }
    Input &input() { return stage().input; }
    Stage &setStage(const Stage::Plan &plan) { return m_stage.emplace(plan); }

private Q_SLOTS:
    /// Ends everything; a failed test leaves a picture of the display in the working directory.
    void cleanup();

private:
    std::optional<Stage> m_stage;
};
