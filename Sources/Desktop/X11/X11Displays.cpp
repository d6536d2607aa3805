#include "X11Displays.h"

#include "NotchKit/Platform/UserDefaults.h"
#include "X11Coordinates.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>
#include <cstdio>

namespace Kestrune {

X11Displays::X11Displays(const UserDefaults &defaults, QObject *parent)
    : Displays(parent)
    , m_defaults(defaults)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(0);
    connect(&m_settle, &QTimer::timeout, this, &Displays::changed);
    const auto settle = [this] { m_settle.start(); };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        m_settle.start();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, settle);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, settle);
    for (const QScreen *screen : QGuiApplication::screens())
        watch(screen);
    reloadHousings();
}

void X11Displays::watch(const QScreen *screen)
{
    const auto settle = [this] { m_settle.start(); };
    connect(screen, &QScreen::geometryChanged, this, settle);
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, settle);
}

QList<Display> X11Displays::all() const
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

std::optional<Display> X11Displays::main() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen || screen->name().isEmpty())
        return std::nullopt;
    return describe(*screen);
}

Display X11Displays::describe(const QScreen &screen) const
{
    Display display{screen.name(), X11::frameOf(screen), 0, std::nullopt, std::nullopt};
    const QSizeF housing = m_housings.value(screen.name());
    const double beside = (display.frame.width() - housing.width()) / 2;
    if (housing.isEmpty() || beside <= 0 || housing.height() >= display.frame.height())
        return display;
    const QRectF &frame = display.frame;
    const double bottom = frame.y() + frame.height() - housing.height();
    display.safeAreaTop = housing.height();
    display.auxiliaryTopLeft = QRectF(frame.x(), bottom, beside, housing.height());
    display.auxiliaryTopRight = QRectF(frame.x() + frame.width() - beside, bottom, beside, housing.height());
    return display;
}

void X11Displays::reloadHousings()
{
    const QString key = QString::fromLatin1(housingsKey);
    const StringMap described = m_defaults.value<StringMap>(key).value_or(StringMap());
    QMap<QString, QSizeF> housings;
    for (const auto &[output, description] : described.asKeyValueRange()) {
        if (const auto size = parseHousing(description)) {
            housings.insert(output, *size);
        } else {
            std::fprintf(stderr, "Kestrune: the camera housing of %s must read WIDTHxHEIGHT, not \"%s\"\n",
                         qPrintable(output), qPrintable(description));
        }
    }
    if (housings == m_housings)
        return;
    m_housings = housings;
    m_settle.start();
}

std::optional<QSizeF> X11Displays::parseHousing(const QString &description)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,4}(?:\\.\\d+)?)x(\\d{1,4}(?:\\.\\d+)?)$"));
    const auto match = form.match(description);
    const QSizeF size(match.captured(1).toDouble(), match.captured(2).toDouble());
    return match.hasMatch() && !size.isEmpty() ? std::optional(size) : std::nullopt;
}

} // namespace Kestrune
