#pragma once

#include "NotchKit/Platform/Displays.h"

#include <QMap>
#include <QSizeF>
#include <QTimer>

class QScreen;

namespace Kestrune {

class UserDefaults;

/// The X server's outputs. They report no camera housing; the user can describe one per output under the
/// key "kestrune.cameraHousings": a string map from output name to "WIDTHxHEIGHT" in points, for example
/// {"eDP-1": "185x32"}. An entry that reads otherwise is ignored with one line on standard error.
class X11Displays : public Displays
{
    Q_OBJECT

public:
    static constexpr auto housingsKey = "kestrune.cameraHousings";

    explicit X11Displays(const UserDefaults &defaults, QObject *parent = nullptr);

    QList<Display> all() const override;
    std::optional<Display> main() const override;

    /// Reads the described camera housings again.
    void reloadHousings();

    /// `description` ("185x32") as a size in points; nothing when it reads otherwise.
    static std::optional<QSizeF> parseHousing(const QString &description);

private:
    Display describe(const QScreen &screen) const;
    void watch(const QScreen *screen);

    const UserDefaults &m_defaults;
    QMap<QString, QSizeF> m_housings;
    QTimer m_settle; ///< A change of displays comes as a burst of events; one report follows it.
};

} // namespace Kestrune
