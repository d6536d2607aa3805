#include "NotchSurroundings.h"

#include "AirDrop.h"
#include "NotchKit/Platform/Platform.h"
#include "NotchKit/Platform/Workspace.h"
#include "NotchSettings.h"

namespace Kestrune {

NotchSurroundings::NotchSurroundings(NotchSettings &settings, const Platform &platform, AirDrop &airDrop)
    : m_settings(settings)
    , m_airDrop(airDrop)
    , m_clock(platform.clock)
    , m_workspace(platform.workspace)
    , m_thumbnails(platform.thumbnails)
    , m_now(platform.clock.now())
{}

void NotchSurroundings::openUrl(const QUrl &url) { m_workspace.open(url); }

void NotchSurroundings::openPrivacy(const QString &anchor)
{
    const QUrl url(QStringLiteral("x-apple.systempreferences:com.apple.preference.security?") + anchor,
                   QUrl::StrictMode);
    if (!url.isValid())
        qFatal("%s is no privacy page", qPrintable(anchor));
    m_workspace.open(url);
}

void NotchSurroundings::collapse() const
{
    if (collapseAll)
        collapseAll();
}

} // namespace Kestrune
