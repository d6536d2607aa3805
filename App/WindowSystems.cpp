#include "WindowSystems.h"

#include "Desktop/X11/X11WindowSystem.h"
#include "NotchKit/Platform/WindowSystem.h"
#ifdef KESTRUNE_WAYLAND
#include "Desktop/Wayland/WaylandWindowSystem.h"
#endif

#include <QStringList>

namespace Kestrune {

namespace {

struct Known
{
    const char *name;
    const char *qtPlatform;
    bool (*isThere)();
    std::unique_ptr<WindowSystem> (*make)(const UserDefaults &defaults);
};

template <typename System>
constexpr Known known()
{
    return {System::kName, System::kQtPlatform, &System::isThere, &System::make};
}

/// The best one first.
constexpr Known kSystems[]{
#ifdef KESTRUNE_WAYLAND
    known<WaylandWindowSystem>(),
#endif
    known<X11WindowSystem>(),
};

WindowSystemChoice choice(const Known &system, const QString &reason)
{
    return {system.name, system.qtPlatform, system.make, reason};
}

QStringList names()
{
    QStringList names;
    for (const Known &system : kSystems)
        names.append(QLatin1String(system.name));
    return names;
}

std::optional<WindowSystemChoice> chooseNamed(const QString &name, QString &fault)
{
    const QString variable = QLatin1String(kWindowSystemVariable);
    for (const Known &system : kSystems) {
        if (name != QLatin1String(system.name))
            continue;
        if (system.isThere())
            return choice(system, QStringLiteral("%1 names it").arg(variable));
        fault = QStringLiteral("%1 names %2, which is not there").arg(variable, name);
        return std::nullopt;
    }
    fault = QStringLiteral("%1 takes %2, not %3").arg(variable, names().join(QStringLiteral(" or ")), name);
    return std::nullopt;
}

std::optional<WindowSystemChoice> chooseBest(QString &fault)
{
    QString reason = QStringLiteral("it is there");
    for (const Known &system : kSystems) {
        if (system.isThere())
            return choice(system, reason);
        reason = QStringLiteral("there is no compositor that places panels");
    }
    fault = QStringLiteral("it needs a display; an X server, or the one of a Wayland session");
    return std::nullopt;
}

} // namespace

std::optional<WindowSystemChoice> chooseWindowSystem(QString *fault)
{
    QString unheard;
    const QString name = qEnvironmentVariable(kWindowSystemVariable);
    return name.isEmpty() ? chooseBest(fault ? *fault : unheard)
                          : chooseNamed(name, fault ? *fault : unheard);
}

} // namespace Kestrune
