#include "EndToEnd/CameraServer.h"

#include "EndToEnd/Waiting.h"
#include "Support/TestRegistry.h"

#include <algorithm>
#include <csignal>

constexpr auto configuration = R"(
context.spa-libs = { videotestsrc = videotestsrc/libspa-videotestsrc }
context.objects = [ { factory = spa-node-factory args = {
    factory.name = videotestsrc node.name = camera node.description = Camera media.class = Video/Source } } ]
)";

bool CameraServer::plugIn()
{
    m_manager.reset();
    m_server.reset();
    const QString folder = m_environment.value(u"XDG_CONFIG_HOME"_s) + u"/pipewire/pipewire.conf.d"_s;
    if (!writeFile(folder + u"/camera.conf"_s, configuration))
        return false;
    m_server = std::make_unique<ChildProcess>(m_environment);
    const QString socket = m_environment.value(u"XDG_RUNTIME_DIR"_s) + u"/pipewire-0"_s;
    QFile::remove(socket); // of a server that was killed, or the manager would call there and give up
    if (!m_server->launch(u"pipewire"_s) || !waitUntil([&] { return QFile::exists(socket); }))
        return false;
    m_manager = std::make_unique<ChildProcess>(m_environment);
    const auto isReady = [this] {
        const QString now = state();
        return !now.isEmpty() && now != "creating"_L1 && isManaged();
    };
    return m_manager->launch(u"wireplumber"_s) && waitUntil(isReady);
}

bool CameraServer::pullOut()
{
    run(u"pw-cli"_s, {u"destroy"_s, camera("id")});
    if (!dump().isEmpty())
        return state().isEmpty();
    // PipeWire 1.4 takes the timer of its test picture from a loop that it is not in: it aborts or stands
    // still.
    qInfo("the camera's server ended with the camera");
    m_server->killNow();
    return true;
}

bool CameraServer::hang(bool manager)
{
    return ::kill(static_cast<pid_t>((manager ? m_manager : m_server)->processId()), SIGSTOP) == 0;
}

bool CameraServer::isManaged() const
{
    return std::ranges::any_of(dump(), [](const QJsonValue &entry) {
        return entry["props"_L1]["metadata.name"_L1] == "default"_L1;
    });
}

QJsonArray CameraServer::dump() const { return QJsonDocument::fromJson(run(u"pw-dump"_s, {})).array(); }

QString CameraServer::camera(const char *field) const
{
    for (const auto &entry : dump()) {
        const QJsonObject object = entry.toObject();
        const QJsonObject info = object.value("info"_L1).toObject();
        if (info.value("props"_L1).toObject().value("node.name"_L1) != "camera"_L1)
            continue;
        const QJsonValue own = object.value(QLatin1String(field));
        return (own.isUndefined() ? info.value(QLatin1String(field)) : own).toVariant().toString();
    }
    return {};
}

QByteArray CameraServer::run(const QString &program, const QStringList &arguments) const
{
    ChildProcess process(m_environment);
    process.setProcessChannelMode(QProcess::SeparateChannels);
    // The server may ask this process something before it answers.
    if (!process.launch(program, arguments) ||
        !waitUntil([&] { return process.state() == QProcess::NotRunning; }))
        return {};
    return process.readAllStandardOutput();
}
