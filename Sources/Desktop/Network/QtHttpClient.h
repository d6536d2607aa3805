#pragma once

#include "Async/LoopThread.h"
#include "NotchKit/Platform/HttpClient.h"

namespace Kestrune {

/// Qt's network access on a thread of its own, which the first request starts. Follows the proxy settings of
/// the desktop and of the environment. Plain http is spoken with numeric loopback addresses only.
/// What goes into a sink comes on a second thread, because a sink may block.
/// Its end gives up what is under way.
class QtHttpClient : public HttpClient
{
public:
    QFuture<HttpReply> get(const HttpRequest &request) override;

private:
    LoopThread m_loop{"network"};
    LoopThread m_downloads{"downloads"};
};

} // namespace Kestrune
