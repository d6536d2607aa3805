#include "ScreenDisplays.h"

#include "Log.h"
#include "Points.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace Kestrune {

Q_LOGGING_CATEGORY(windowsLog, "kestrune.windows", QtWarningMsg)

ScreenDisplays::ScreenDisplays(const UserDefaults &defaults, QObject *parent)
    : Displays(parent)
    , m_housings(defaults)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(0);
    connect(&m_settle, &QTimer::timeout, this, &Displays::changed);
    const auto settle = [this] { m_settle.start(); };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        qCInfo(windowsLog, "display %s came", qUtf8Printable(screen->name()));
        watch(screen);
        m_settle.start();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](const QScreen *screen) {
        qCInfo(windowsLog, "display %s went", qUtf8Printable(screen->name()));
        m_settle.start();
    });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, settle);
    for (const QScreen *screen : QGuiApplication::screens()) {
        qCInfo(windowsLog, "display %s", qUtf8Printable(screen->name()));
        watch(screen);
    }
}

void ScreenDisplays::watch(const QScreen *screen)
{
    const auto settle = [this] { m_settle.start(); };
    connect(screen, &QScreen::geometryChanged, this, settle);
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, settle);
}

QList<Display> ScreenDisplays::all() const
{
    QList<Display> displays;
    for (const QScreen *screen : QGuiApplication::screens()) {
        const Display display = describe(*screen);
        const bool mirrored =
            std::ranges::any_of(displays, [&](const Display &other) { return other.frame == display.frame; });
        if (!mirrored && !display.frame.isEmpty() && !screen->name().isEmpty())
            displays.append(display);
    }
    return displays;
}

std::optional<Display> ScreenDisplays::main() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen || screen->name().isEmpty())
        return std::nullopt;
    return describe(*screen);
}

Display ScreenDisplays::describe(const QScreen &screen) const
{
    Display display = m_housings.describe(screen.name(), Points::frameOf(screen));
    display.panelsTop = m_panels.value(screen.name());
    return display;
}

void ScreenDisplays::setPanels(const QHash<QString, double> &heights)
{
    if (std::exchange(m_panels, heights) != heights)
        m_settle.start();
}

void ScreenDisplays::housingsChanged()
{
    if (m_housings.reload())
        m_settle.start();
}

} // namespace Kestrune
