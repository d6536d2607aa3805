#pragma once

#include <QByteArray>
#include <QFuture>
#include <QList>
#include <QUrl>

#include <chrono>
#include <memory>
#include <utility>

namespace Kestrune {

/// Takes the body of a reply as it comes, for bodies that are too large for memory.
class BodySink
{
public:
    virtual ~BodySink() = default;

    /// The next piece; called on a thread of the client's, and may block as a disk does. False gives the
    /// request up.
    virtual bool take(const QByteArray &piece) = 0;
};

/// One GET.
struct HttpRequest
{
    QUrl url;                                         ///< https.
    QList<std::pair<QByteArray, QByteArray>> headers; ///< Beyond those that the protocol needs.
    std::chrono::milliseconds timeout;                ///< From the request to the last byte of its reply.
    qint64 mostBytes = 0;                             ///< A longer body, uncompressed, is no reply.
    std::shared_ptr<BodySink> sink = nullptr; ///< Gets the body of a good reply; any other is dropped.

    bool operator==(const HttpRequest &) const = default;
};

/// What came back.
struct HttpReply
{
    int status = 0;  ///< The server's status; 0 where there is no whole reply, for whatever reason.
    QByteArray body; ///< Uncompressed; empty with status 0, and where it went into a sink.

    /// The server gave what it was asked for.
    bool isGood() const { return status >= 200 && status < 300; }

    bool operator==(const HttpReply &) const = default;
};

/// Fetches from web servers whose certificate is good. Knows neither cookies nor a cache. Called on the main
/// thread; nothing here blocks.
class HttpClient
{
public:
    virtual ~HttpClient() = default;

    /// The reply. Cancelling the future gives the request up.
    virtual QFuture<HttpReply> get(const HttpRequest &request) = 0;
};

} // namespace Kestrune
