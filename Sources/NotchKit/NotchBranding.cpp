#include "NotchBranding.h"

#include "NotchStrings.h"

#include <QCoreApplication>

namespace Kestrune {

const NotchBranding &NotchBranding::fennivar()
{
    static const NotchBranding branding{
        QStringLiteral("Kestrune"),
        notchStrings(QT_TRANSLATE_NOOP("notch", "More tools at fennivar.example")),
        QUrl(QStringLiteral("https://fennivar.example/?ref=kestrune")),
    };
    return branding;
}

const NotchBranding &NotchBranding::none()
{
    static const NotchBranding branding{QStringLiteral("Fennivar"), std::nullopt, std::nullopt};
    return branding;
}

QString NotchBranding::suiteIdentifier() { return QStringLiteral("example.fennivar.Fennivar"); }

} // namespace Kestrune
