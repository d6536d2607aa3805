#include "ScriptBridge.h"

#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/PictureReader.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kDownloadTime = 10s;
constexpr auto kLongestDecoding = 10s;
constexpr int kOk = 200;
constexpr PictureWish kCover{.fit = PictureWish::Fit::square, .side = ScriptBridge::kCoverSide};

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

ScriptBridge::ScriptBridge(ScriptExecutor &executor, HttpClient &http,
                           std::shared_ptr<PictureReader> pictures)
    : m_executor(executor)
    , m_http(http)
    , m_pictures(std::move(pictures))
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
    if (data.isEmpty() || data.size() > kMostCoverBytes)
        co_return image;
    const auto decode = [data, pictures = m_pictures] { return pictures->read(data, kCover).image; };
    const QFuture<QImage> decoding = m_covers.run(kLongestDecoding, decode);
    image = co_await until(decoding);
    co_return image;
}

QFuture<ScriptOutcome> ScriptBridge::run(Command command, Player player)
{
    return m_executor.execute(PlayerScripts::command(command, player));
}

QFuture<ScriptOutcome> ScriptBridge::seek(Player player, double position)
{
    return m_executor.execute(PlayerScripts::seek(player, position));
}

} // namespace Kestrune
