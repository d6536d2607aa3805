#include "ScriptBridge.h"

#include "CoverImage.h"
#include "NotchKit/Platform/HttpClient.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kDownloadTime = 10s;
constexpr auto kLongestDecoding = 10s;
constexpr int kOk = 200;

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
    request.mostBytes = kMostCoverBytes;
    return request;
}

} // namespace

ScriptBridge::ScriptBridge(ScriptExecutor &executor, HttpClient &http)
    : m_executor(executor)
    , m_http(http)
{}

QCoro::Task<ScriptBridge::Result> ScriptBridge::state(Player player)
{
    const QFuture<ScriptOutcome> asked = m_executor.execute(PlayerScripts::status(player));
    const ScriptOutcome outcome = co_await until(asked);
    const Result result = resultOf(player, outcome);
    co_return result;
}

/// A script's answer is the cover itself or the address of it.
QCoro::Task<QImage> ScriptBridge::artwork(Player player)
{
    const QFuture<ScriptOutcome> asked = m_executor.execute(PlayerScripts::artwork(player));
    const ScriptOutcome outcome = co_await until(asked);
    QByteArray data;
    if (const auto *bytes = std::get_if<QByteArray>(&outcome))
        data = *bytes;
    const auto *address = std::get_if<QString>(&outcome);
    const HttpRequest request = requestOf(address ? *address : QString());
    if (request.url.isValid() && request.url.scheme() == QLatin1String("https")) {
        const QFuture<HttpReply> fetched = m_http.get(request);
        const HttpReply reply = co_await until(fetched);
        if (reply.status == kOk)
            data = reply.body;
    }
    QImage image;
    if (data.isEmpty())
        co_return image;
    const auto decode = [data] { return CoverImage::decode(data); };
    const QFuture<QImage> decoding = m_covers.run(kLongestDecoding, decode);
    image = co_await until(decoding);
    co_return image;
}

QFuture<ScriptOutcome> ScriptBridge::run(Command command, Player player)
{
    return m_executor.execute(PlayerScripts::command(command, player));
}

} // namespace Kestrune
