#include "EndToEnd/Stage.h"

constexpr QRgb desktopColour = 0xff7090b0;
constexpr QRgb beneathColour = 0xff2f6f4f;

Stage::Stage(const Plan &plan)
    : display(plan.server, plan.size, session.environment())
    , x(startDesktop(display, plan))
    , input(x)
    ,
    // Not quite the whole display, or a window manager takes it for a full-screen program.
    beneath(display.name(), TestWindow::Kind::Plain, {{}, plan.size - QSize(0, 10)}, beneathColour)
{
    x.paintDesktop(desktopColour);
    session.environment().insert(u"DISPLAY"_s, display.name());
}

QString Stage::startDesktop(VirtualDisplay &display, const Plan &plan)
{
    if (display.name().isEmpty() || !display.startWindowManager(plan.windowManager) ||
        (plan.compositor && !display.startCompositor()))
        qFatal("the desktop did not start");
    return display.name();
}

bool Stage::run(Settings settings, const QStringList &arguments)
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

bool Stage::openByHotKey()
{
    input.hotKey();
    return waitUntil([this] { return looksOpen(); });
}

bool Stage::openByHover()
{
    input.move(Place::notch);
    return waitUntil([this] { return looksOpen(); });
}

bool Stage::waitClosed() const
{
    return waitUntil([this] { return looksClosed() && !session.isOpen(); });
}

bool Stage::leave()
{
    input.move(Place::away);
    return waitClosed();
}

bool Stage::clickReachesBeneath(QPoint place)
{
    beneath.forget();
    input.click(place);
    // A window manager may hold a click back for a moment to decide which window becomes active.
    return waitUntil([this] { return beneath.clicks() == 1; });
}

bool Stage::clickIsKept(QPoint place)
{
    beneath.forget();
    input.click(place);
    return holdsFor([this] { return beneath.clicks() == 0; }, 500);
}

bool Stage::choose(const QString &tool)
{
    return session.command({u"open"_s, tool}).status == 0 && session.selected() == tool &&
           session.command({u"close"_s}).status == 0 && waitClosed();
}

void StageTest::cleanup()
{
    if (m_stage && QTest::currentTestFailed()) {
        const QString name = QString::fromLatin1(QTest::currentTestFunction()) + u'-' +
                             QString::fromLatin1(QTest::currentDataTag());
        const auto *screen = m_stage->x.screen();
        m_stage->x.grab({0, 0, screen->width_in_pixels, screen->height_in_pixels}).save(name + u".png"_s);
    }
    m_stage.reset();
}
