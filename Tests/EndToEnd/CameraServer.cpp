#include "EndToEnd/CameraServer.h"

#include "EndToEnd/Waiting.h"
#include "Support/TestRegistry.h"

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
    if (!m_server->launch(u"pipewire"_s) || !waitUntil([&] { return QFile::exists(socket); }))
        return false;
    m_manager = std::make_unique<ChildProcess>(m_environment);
    return m_manager->launch(u"wireplumber"_s) && waitUntil([this] { return state() == "suspended"_L1; });
}

bool CameraServer::pullOut()
{
    run(u"pw-cli"_s, {u"destroy"_s, camera("id")});
    return state().isEmpty();
}

bool CameraServer::hang(bool manager)
{
    return ::kill(static_cast<pid_t>((manager ? m_manager : m_server)->processId()), SIGSTOP) == 0;
}

QString CameraServer::camera(const char *field) const
{
    const QJsonArray all = QJsonDocument::fromJson(run(u"pw-dump"_s, {})).array();
    for (const auto &entry : all) {
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
