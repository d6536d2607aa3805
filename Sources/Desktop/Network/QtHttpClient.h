#pragma once

#include "Desktop/WorkLoop.h"
#include "NotchKit/Platform/HttpClient.h"

class QNetworkAccessManager;

namespace Kestrune {

/// Qt's network access on a thread of its own, which the first request starts. Follows the proxy settings of
/// the desktop and of the environment. Plain http is spoken with numeric loopback addresses only.
/// Its end gives up what is under way.
class QtHttpClient : public HttpClient
{
public:
    QFuture<HttpReply> get(const HttpRequest &request) override;

private:
    QNetworkAccessManager *m_manager = nullptr; ///< Touched on the loop's thread only.
    WorkLoop m_loop{QStringLiteral("network")};
};

} // namespace Kestrune
