#include "ScriptBridge.h"

#include "CoverImage.h"
#include "NotchKit/Platform/HttpClient.h"

#include <QCoroFuture>
#include <QtConcurrentRun>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kDownloadTime = 10s;
constexpr int kOk = 200;

QString verb(ScriptBridge::Command command)
{
    switch (command) {
    case ScriptBridge::Command::playPause:
        return QStringLiteral("playpause");
    case ScriptBridge::Command::next:
        return QStringLiteral("next track");
    case ScriptBridge::Command::previous:
        return QStringLiteral("previous track");
    }
    return {};
}

ScriptBridge::Result resultOf(MediaPlayer player, const ScriptOutcome &outcome)
{
    if (std::holds_alternative<ScriptNotPermitted>(outcome))
        return ScriptBridge::Denied();
    if (const auto *answer = std::get_if<QString>(&outcome)) {
        if (const auto track = parsePlayerStatus(player, *answer))
            return *track;
    }
    return ScriptBridge::None();
}

HttpRequest requestOf(const QString &address)
{
    HttpRequest request;
    request.url = QUrl(address, QUrl::StrictMode);
    request.timeout = kDownloadTime;
    request.mostBytes = CoverImage::kMostBytes;
    return request;
}

/// A script's answer is the cover itself or the address of it.
QCoro::Task<QImage> coverOf(QFuture<ScriptOutcome> answer, HttpClient &http)
{
    // Each temporary has a name: the compiler may end one twice that lives across an await.
    const ScriptOutcome outcome = co_await answer;
    QByteArray data;
    if (const auto *bytes = std::get_if<QByteArray>(&outcome))
        data = *bytes;
    const auto *address = std::get_if<QString>(&outcome);
    const HttpRequest request = requestOf(address ? *address : QString());
    if (request.url.isValid() && request.url.scheme() == QLatin1String("https")) {
        const QFuture<HttpReply> asked = http.get(request);
        const HttpReply reply = co_await asked;
        if (reply.status == kOk)
            data = reply.body;
    }
    QImage image;
    if (data.isEmpty())
        co_return image;
    const QFuture<QImage> decoded = QtConcurrent::run(&CoverImage::decode, data);
    image = co_await decoded;
    co_return image;
}

} // namespace

ScriptBridge::ScriptBridge(ScriptExecutor &executor, HttpClient &http)
    : m_executor(executor)
    , m_http(http)
{
    m_queue.setObjectName(QStringLiteral("kestrune.applescript"));
    m_queue.setMaxThreadCount(1);
}

QString ScriptBridge::statusScript(Player player)
{
    return QStringLiteral(R"(tell application "%1"
  if player state is stopped then return ""
  set t to current track
  set d to duration of t
  return (player state as text) & "\n" & (name of t) & "\n" & (artist of t) & "\n" & (d as text) & "\n" & (player position as text)
end tell)")
        .arg(playerName(player));
}

QString ScriptBridge::artworkScript(Player player)
{
    if (player == Player::spotify)
        return QStringLiteral(R"(tell application "Spotify" to return artwork url of current track)");
    return QStringLiteral(
        R"(tell application "Music" to if (count of artworks of current track) > 0 then return data of artwork 1 of current track)");
}

QString ScriptBridge::commandScript(Command command, Player player)
{
    return QStringLiteral(R"(tell application "%1" to %2)").arg(playerName(player), verb(command));
}

QFuture<ScriptBridge::Result> ScriptBridge::state(Player player)
{
    return QtConcurrent::run(&m_queue, [&executor = m_executor, player] {
        return resultOf(player, executor.execute(statusScript(player)));
    });
}

QCoro::Task<QImage> ScriptBridge::artwork(Player player)
{
    const auto ask = [&executor = m_executor, player] { return executor.execute(artworkScript(player)); };
    return coverOf(QtConcurrent::run(&m_queue, ask), m_http);
}

QFuture<void> ScriptBridge::run(Command command, Player player)
{
    return QtConcurrent::run(&m_queue, [&executor = m_executor, command, player] {
        executor.execute(commandScript(command, player));
    });
}

} // namespace Kestrune
