#pragma once

#include "Displays.h"

#include <QMap>
#include <QSizeF>

namespace Kestrune {

class UserDefaults;

/// The camera housings that the user describes, for window systems that report none: a string map from output
/// name to "WIDTHxHEIGHT" in points under `key`, for example {"eDP-1": "185x32"}. An entry that reads
/// otherwise is ignored with one line on standard error. Main thread only.
class CameraHousings
{
public:
    static constexpr auto key = "kestrune.cameraHousings";

    /// `defaults` outlive the object.
    explicit CameraHousings(const UserDefaults &defaults);

    /// Reads the descriptions again; whether that changed any.
    bool reload();

    /// The display of that name and frame, with its housing where one is described that it has room for.
    Display describe(const QString &name, const QRectF &frame) const;

    /// `description` ("185x32") as a size in points; nothing when it reads otherwise.
    static std::optional<QSizeF> parse(const QString &description);

private:
    const UserDefaults &m_defaults;
    QMap<QString, QSizeF> m_sizes;
};

} // namespace Kestrune
