#include "CommandLine.h"
#include "ControlService.h"
#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "Desktop/Session/AutostartLoginItem.h"
#include "NotchKit/NotchSettings.h"
#include "StandardSettings.h"
#include "Watchdog.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <memory>

namespace Kestrune {

namespace {

using Verb = CommandLine::Verb;

constexpr int kTimeout = 5000;                  // ms
constexpr std::chrono::seconds kBusTimeout(10); // To reach the bus, and through it the program.

int fail(int status, const QString &fault)
{
    std::fprintf(stderr, "Kestrune: %s\n", qPrintable(fault.simplified()));
    return status;
}

QDBusMessage call(const QString &method, const QVariantList &arguments = {})
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        ControlService::busName(), ControlService::objectPath(), ControlService::interfaceName(), method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    Watchdog watchdog(kBusTimeout, 1, "Kestrune: the session bus does not answer\n");
    QDBusMessage reply = QDBusConnection::sessionBus().call(message, QDBus::Block, kTimeout);
    watchdog.callOff();
    return reply;
}

bool nothingRuns(const QDBusMessage &reply)
{
    return !QDBusConnection::sessionBus().isConnected() ||
           reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") ||
           reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

bool hangs(const QDBusMessage &reply)
{
    return reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NoReply") ||
           reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.Timeout");
}

/// What went wrong with a call, or nothing and 0.
int outcome(const QDBusMessage &reply)
{
    if (reply.type() == QDBusMessage::ReplyMessage)
        return 0;
    if (nothingRuns(reply))
        return fail(1, QStringLiteral("it is not running"));
    if (hangs(reply))
        return fail(1, QStringLiteral("it is running, but does not answer"));
    const bool badArguments = reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.InvalidArgs");
    return fail(badArguments ? 2 : 1, reply.errorMessage());
}

void printReadable(const QJsonObject &status)
{
    const auto yesNo = [](const QJsonValue &value) { return value.toBool() ? "yes" : "no"; };
    std::printf("running: %s\npaused by the suite: %s\n", yesNo(status[QLatin1String("running")]),
                yesNo(status[QLatin1String("yielding")]));
    for (const QJsonValue display : status[QLatin1String("displays")].toArray()) {
        std::printf("%s: %s, %s\n", qPrintable(display[QLatin1String("name")].toString()),
                    display[QLatin1String("expanded")].toBool() ? "open" : "closed",
                    qPrintable(display[QLatin1String("selected")].toString()));
    }
}

int printStatus(bool json)
{
    const QDBusMessage reply = call(QStringLiteral("Status"));
    if (const int status = outcome(reply))
        return status;
    const QByteArray report = reply.arguments().value(0).toString().toUtf8();
    if (json)
        std::fputs(report.constData(), stdout);
    else
        printReadable(QJsonDocument::fromJson(report).object());
    return 0;
}

/// The settings of the running program, or of the store when none runs.
class Settings
{
public:
    /// `reply` is the running program's to a question for its status. A store that is only read is left as it
    /// is, or is not made.
    Settings(const QDBusMessage &reply, SqliteUserDefaults::Access access)
        : m_running(!nothingRuns(reply))
    {
        if (m_running)
            return;
        m_defaults = std::make_unique<SqliteUserDefaults>(SqliteUserDefaults::path(standardDomain()), access);
        m_settings = std::make_unique<NotchSettings>(*m_defaults);
        m_loginItem = std::make_unique<AutostartLoginItem>(QCoreApplication::applicationFilePath());
        m_keys = std::make_unique<SettingsKeys>(*m_settings, standardExtras(*m_defaults, *m_loginItem));
    }

    static QStringList keys() { return NotchSettings::names() + standardExtraKeys(); }

    int print(const QString &key, const QString &prefix = {})
    {
        QString text;
        if (m_running) {
            const QDBusMessage reply = call(QStringLiteral("GetSetting"), {key});
            if (const int status = outcome(reply))
                return status;
            text = reply.arguments().value(0).toString();
        } else {
            const auto value = m_keys->get(key);
            if (!value)
                return fail(2, QStringLiteral("no setting is named %1").arg(key));
            text = *value;
        }
        std::printf("%s%s\n", qPrintable(prefix), qPrintable(text));
        return 0;
    }

    int set(const QString &key, const QString &text)
    {
        if (m_running)
            return outcome(call(QStringLiteral("SetSetting"), {key, text}));
        const auto fault = m_keys->set(key, text);
        return fault ? fail(2, *fault) : 0;
    }

    int reset(const QString &key)
    {
        if (m_running)
            return outcome(call(QStringLiteral("ResetSetting"), {key}));
        const auto fault = m_keys->reset(key);
        return fault ? fail(2, *fault) : 0;
    }

private:
    bool m_running;
    std::unique_ptr<SqliteUserDefaults> m_defaults;
    std::unique_ptr<NotchSettings> m_settings;
    std::unique_ptr<AutostartLoginItem> m_loginItem;
    std::unique_ptr<SettingsKeys> m_keys;
};

int runSettings(const QStringList &arguments)
{
    const QString &verb = arguments.constFirst();
    if (verb == QLatin1String("open"))
        return outcome(call(QStringLiteral("OpenSettings")));
    const QDBusMessage reply = call(QStringLiteral("Status"));
    if (hangs(reply))
        return outcome(reply);
    using Access = SqliteUserDefaults::Access;
    const bool changes = verb == QLatin1String("set") || verb == QLatin1String("reset");
    Settings settings(reply, changes ? Access::ReadWrite : Access::ReadOnly);
    const QString key = arguments.value(1);
    if (verb == QLatin1String("get"))
        return settings.print(key);
    if (verb == QLatin1String("set"))
        return settings.set(key, arguments.value(2));
    if (verb == QLatin1String("reset"))
        return settings.reset(key);
    int status = 0;
    for (const QString &name : Settings::keys())
        status = std::max(status, settings.print(name, name + QLatin1Char(' ')));
    return status;
}

int printUsage(const UsageRequest &request)
{
    if (!QDir(request.home).exists())
        return fail(2, QStringLiteral("there is no folder %1").arg(request.home));
    const QByteArray report = usageReport(request);
    std::fwrite(report.constData(), 1, static_cast<std::size_t>(report.size()), stdout);
    return 0;
}

} // namespace

int runCommand(const CommandLine &command)
{
    switch (command.verb) {
    case Verb::help:
        std::fputs(qPrintable(CommandLine::helpText()), stdout);
        return 0;
    case Verb::version:
        std::puts(KESTRUNE_VERSION);
        return 0;
    case Verb::toggle:
        return outcome(call(QStringLiteral("Toggle")));
    case Verb::open:
        return outcome(call(QStringLiteral("Open"), {command.arguments.value(0)}));
    case Verb::close:
        return outcome(call(QStringLiteral("Close")));
    case Verb::quit:
        return outcome(call(QStringLiteral("Quit")));
    case Verb::status:
        return printStatus(command.json);
    case Verb::settings:
        return runSettings(command.arguments);
    case Verb::prompter:
        return outcome(
            call(QStringLiteral("Prompter"), {command.arguments.value(0), command.arguments.value(1)}));
    case Verb::usage:
        return printUsage(command.usage);
    case Verb::bad:
        return fail(2, command.fault + QStringLiteral("; see kestrune --help"));
    case Verb::start:
        break;
    }
    return 0;
}

} // namespace Kestrune
