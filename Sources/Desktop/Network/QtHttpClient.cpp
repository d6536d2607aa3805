#include "QtHttpClient.h"

#include "HttpExchange.h"
#include "NotchKit/Platform/Addresses.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kSlack = 10s; // A loop that needs longer to notice the end of a time-out hangs.

/// What the user has set for all programs. Asked on the network's thread: it may take its time.
class UserProxies : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override
    {
        if (isLoopback(query.url()))
            return {QNetworkProxy::NoProxy};
        return systemProxyForQuery(query);
    }
};

/// The one that lives on the thread.
QNetworkAccessManager &managerOn(QObject &thread)
{
    if (auto *manager = thread.findChild<QNetworkAccessManager *>())
        return *manager;
    auto *manager = new QNetworkAccessManager(&thread);
    manager->setProxyFactory(new UserProxies);
    return *manager;
}

} // namespace

QFuture<HttpReply> QtHttpClient::get(const HttpRequest &request)
{
    if (!isFetchable(request.url))
        return answered(HttpReply());
    const auto fetch = [request](QObject &thread, const Pledge<HttpReply> &pledge) {
        if (pledge.isWanted())
            new HttpExchange(managerOn(thread), request, pledge);
    };
    LoopThread &loop = request.sink ? m_downloads : m_loop;
    return loop.ask<HttpReply>(request.timeout + kSlack, fetch);
}

} // namespace Kestrune
