#pragma once

#include "NotchKit/Platform/Appearance.h"

#include <QDBusConnection>
#include <QDBusVariant>

#include <optional>

namespace Kestrune {

/// The desktop's colour scheme as its portal tells it. Without a portal, or where that has no preference,
/// the brightness of the platform's window colour decides.
class PortalAppearance : public Appearance
{
    Q_OBJECT

public:
    /// Asks at once and follows each change.
    explicit PortalAppearance(const QDBusConnection &bus, QObject *parent = nullptr);

    bool isDark() const override;

private Q_SLOTS:
    void settingChanged(const QString &space, const QString &key, const QDBusVariant &value);

private:
    void ask(QDBusConnection &bus);
    void take(QVariant scheme);

    std::optional<bool> m_dark; ///< Nothing: the desktop has no preference.
};

} // namespace Kestrune
