#pragma once

#include "NotchKit/Platform/CameraHousings.h"

#include <QHash>
#include <QTimer>

class QScreen;

namespace Kestrune {

/// The displays as Qt knows them. They report no camera housing; the user can describe one (CameraHousings).
class ScreenDisplays : public Displays
{
    Q_OBJECT

public:
    explicit ScreenDisplays(const UserDefaults &defaults, QObject *parent = nullptr);

    QList<Display> all() const override;
    std::optional<Display> main() const override;
    void housingsChanged() override;

    /// The heights of the desktop's panels at the middle of the top edges, in points, by the names of
    /// displays.
    void setPanels(const QHash<QString, double> &heights);

    /// Points were told of other places.
    void placesChanged() { m_settle.start(); }

private:
    Display describe(const QScreen &screen) const;
    void watch(const QScreen *screen);

    CameraHousings m_housings;
    QHash<QString, double> m_panels;
    QTimer m_settle; ///< A change of displays comes as a burst of events; one report follows it.
};

} // namespace Kestrune
