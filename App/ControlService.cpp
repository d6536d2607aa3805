#include "ControlService.h"

#include "AppState.h"
#include "StatusReport.h"

#include <QCoreApplication>
#include <QDBusConnection>

namespace Kestrune {

ControlService::ControlService(AppState &app, SettingsKeys &settings, const WindowSystemChoice &windows,
                               QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_settings(settings)
    , m_windows(windows)
{}

void ControlService::Toggle() { m_app.toggle(); }

void ControlService::Open(const QString &tool) { m_app.showNotch(fromRawValue<NotchTool>(tool), true); }

void ControlService::Close() { m_app.controller().collapseAll(); }

void ControlService::OpenSettings() { m_app.openSettings(); }

void ControlService::Quit() { QCoreApplication::quit(); }

void ControlService::Reopen(const QString &tool)
{
    m_app.showNotch(fromRawValue<NotchTool>(tool).value_or(NotchTool::home));
}

QString ControlService::Status() { return QString::fromUtf8(statusReport(m_app, m_windows)); }

QString ControlService::GetSetting(const QString &key)
{
    const auto text = m_settings.get(key);
    if (!text)
        report(QStringLiteral("no setting is named %1").arg(key));
    return text.value_or(QString());
}

void ControlService::SetSetting(const QString &key, const QString &text)
{
    report(m_settings.set(key, text));
}

void ControlService::ResetSetting(const QString &key) { report(m_settings.reset(key)); }

void ControlService::report(const std::optional<QString> &fault)
{
    if (fault && calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, *fault);
}

} // namespace Kestrune
