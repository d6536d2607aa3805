#include "Program.h"

#include "EndToEnd/Waiting.h"
#include "Support/Files.h"

#include <QDBusConnectionInterface>
#include <QJsonDocument>
#include <QRegularExpression>

#include <filesystem>
#include <numeric>

namespace Faults {

namespace {

/// Kilobytes, or a number, behind a name in a file of /proc.
qint64 figure(const QByteArray &text, const char *name)
{
    qint64 sum = 0;
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith(name))
            sum += line.mid(line.indexOf(':') + 1).simplified().split(' ').constFirst().toLongLong();
    }
    return sum;
}

/// What each descriptor leads to, without numbers.
QMap<QString, int> kindsOfDescriptors(const QString &folder)
{
    static const QRegularExpression numbers(QStringLiteral("[0-9]+"));
    QMap<QString, int> kinds;
    std::error_code fault;
    for (const auto &link : std::filesystem::directory_iterator(folder.toStdString(), fault))
        ++kinds[QString::fromStdString(std::filesystem::read_symlink(link, fault).string()).remove(numbers)];
    return kinds;
}

} // namespace

Holdings Holdings::of(qint64 process)
{
    const QString folder = QStringLiteral("/proc/%1/").arg(process);
    const QByteArray memory = readFile(folder + QStringLiteral("smaps_rollup"));
    const QByteArray status = readFile(folder + QStringLiteral("status"));
    const QMap<QString, int> kinds = kindsOfDescriptors(folder + QStringLiteral("fd"));
    return {.memory = figure(memory, "Pss:"),
            .ownMemory = figure(memory, "Pss_Anon:") + figure(memory, "Pss_Shmem:"),
            .descriptors = std::accumulate(kinds.begin(), kinds.end(), qint64{0}),
            .threads = figure(status, "Threads:"),
            .kinds = kinds,
            .wakeUps = figure(status, "voluntary_ctxt_switches:")};
}

Program::Program(Session &session)
    : m_session(session)
{}

bool Program::launch()
{
    m_process = std::make_unique<ChildProcess>(m_session.environment());
    return m_process->launch(Session::executable());
}

bool Program::waitUntilServing()
{
    const auto isNamed = [this] {
        return m_session.bus().interface()->isServiceRegistered(Session::busName());
    };
    return waitUntil([&] { return !isRunning() || isNamed(); }) && isRunning() && !status().isEmpty();
}

QDBusMessage Program::call(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(Session::busName(), QStringLiteral("/example/kestrune/Kestrune"),
                                       QStringLiteral("example.kestrune.Control"), method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

std::optional<QVariantList> Program::ask(const QString &method, const QVariantList &arguments) const
{
    constexpr int kLongest = 60'000;
    const QDBusMessage reply = m_session.bus().call(call(method, arguments), QDBus::Block, kLongest);
    return reply.type() == QDBusMessage::ReplyMessage ? std::optional(reply.arguments()) : std::nullopt;
}

std::optional<QString> Program::setting(const QString &key) const
{
    const auto reply = ask(QStringLiteral("GetSetting"), {key});
    return reply ? std::optional(reply->value(0).toString()) : std::nullopt;
}

bool Program::set(const QString &key, const QString &value) const
{
    return ask(QStringLiteral("SetSetting"), {key, value}).has_value();
}

QJsonObject Program::status() const
{
    const auto reply = ask(QStringLiteral("Status"));
    return reply ? QJsonDocument::fromJson(reply->value(0).toString().toUtf8()).object() : QJsonObject();
}

QStringList Program::takeWords()
{
    return QString::fromUtf8(m_process->readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace Faults
