#pragma once

#include "EndToEnd/Input.h"
#include "EndToEnd/Session.h"
#include "EndToEnd/TestWindow.h"
#include "EndToEnd/VirtualDisplay.h"

#include <initializer_list>

/// Where things are on a display of 1280 x 800 pixels at scale 1, from the top left.
namespace Place {

constexpr QPoint notch(640, 16);        ///< Inside the closed notch.
constexpr QPoint firstOpened(640, 60);  ///< Black as soon as the notch begins to open.
constexpr QPoint panel(640, 200);       ///< Inside the open notch only, in the middle of the pane.
constexpr QPoint panelEdge(640, 324);   ///< Inside the fully open notch only.
constexpr QPoint away(640, 600);        ///< Outside the open notch and its window.
constexpr QPoint pin(938, 20);          ///< The pin button in the header.
constexpr QPoint settings(974, 20);     ///< The settings button in the header.
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

    explicit Stage(const Plan &plan)
        : display(plan.server, plan.size, session.environment())
        , x(startDesktop(display, plan))
        , input(x)
        ,
        // Not quite the whole display, or a window manager takes it for a full-screen program.
        beneath(display.name(), TestWindow::Kind::Plain, {{}, plan.size - QSize(0, 10)}, 0xff2f6f4f)
    {
        x.paintDesktop(0xff7090b0);
        session.environment().insert(u"DISPLAY"_s, display.name());
    }
    ~Stage() { session.endProgram(); } // before its display
    Q_DISABLE_COPY_MOVE(Stage)

    /// Starts the program, which has been started before, with these settings; the pointer is elsewhere.
    bool run(Settings settings = {}, const QStringList &arguments = {})
    {
        session.setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
        for (const auto &[name, value] : settings) {
            if (!session.set(QString::fromLatin1(name), QString::fromLatin1(value)))
                return false;
        }
        input.move(Place::away);
        const QPoint notch(x.screen()->width_in_pixels / 2, Place::notch.y());
        return session.start(arguments) && waitUntil([&] { return covered(notch); });
    }

    /// Whether the picture at `place` is something else than the window beneath.
    bool covered(QPoint place) const { return x.pixel(place) != beneath.colour(); }
    bool looksOpen() const { return covered(Place::panelEdge); }
    bool looksClosed() const { return !covered(Place::firstOpened); }

    /// Opens with the hot key, by hover, or closes, and waits until it has been done and drawn.
    bool openByHotKey()
    {
        input.hotKey();
        return waitUntil([this] { return looksOpen(); });
    }
    bool openByHover()
    {
        input.move(Place::notch);
        return waitUntil([this] { return looksOpen(); });
    }
    bool waitClosed() const
    {
        return waitUntil([this] { return looksClosed() && !session.isOpen(); });
    }
    /// The pointer goes elsewhere, which closes it.
    bool leave()
    {
        input.move(Place::away);
        return waitClosed();
    }

    /// Clicks there and says whether the window beneath got the click.
    bool clickReachesBeneath(QPoint place)
    {
        beneath.forget();
        input.click(place);
        // A window manager may hold a click back for a moment to decide which window becomes active.
        return waitUntil([this] { return beneath.clicks() == 1; });
    }

    /// Whether a click there does not reach the window beneath within half a second.
    bool clickIsKept(QPoint place)
    {
        beneath.forget();
        input.click(place);
        return holdsFor([this] { return beneath.clicks() == 0; }, 500);
    }

    /// Shows the tool's pane without opening the notch for the keyboard: the next opening finds it.
    bool choose(const QString &tool)
    {
        return session.command({u"open"_s, tool}).status == 0 && session.selected() == tool && close();
    }

    /// Runs and opens it with that tool, for hot keys and commands alone unless the settings say otherwise.
    bool show(const QString &tool, Settings settings = {{"hoverDelay", "60"}})
    {
        return run(settings) && choose(tool) && openByHotKey();
    }

    /// Closes as a command does, whatever the pointer is at.
    bool close() { return session.command({u"close"_s}).status == 0 && waitClosed(); }

    Session session;
    VirtualDisplay display;
    X11 x;
    Input input;
    TestWindow beneath;

private:
    static QString startDesktop(VirtualDisplay &display, const Plan &plan)
    {
        if (display.name().isEmpty() || !display.startWindowManager(plan.windowManager) ||
            (plan.compositor && !display.startCompositor()))
            qFatal("the desktop did not start");
        return display.name();
    }
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
    void cleanup()
    {
        if (m_stage && QTest::currentTestFailed()) {
            const QString name = QString::fromLatin1(QTest::currentTestFunction()) + u'-' +
                                 QString::fromLatin1(QTest::currentDataTag());
            const auto *screen = m_stage->x.screen();
            m_stage->x.grab({0, 0, screen->width_in_pixels, screen->height_in_pixels}).save(name + u".png"_s);
        }
        m_stage.reset();
    }

private:
    std::optional<Stage> m_stage;
};
