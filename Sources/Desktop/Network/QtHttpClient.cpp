#include "QtHttpClient.h"

#include "Addresses.h"
#include "HttpExchange.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>

namespace Kestrune {

namespace {

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

} // namespace

QFuture<HttpReply> QtHttpClient::get(const HttpRequest &request)
{
    const auto promise = std::make_shared<QPromise<HttpReply>>();
    promise->start();
    const QFuture<HttpReply> future = promise->future();
    if (!isFetchable(request.url)) {
        promise->addResult(HttpReply());
        promise->finish();
        return future;
    }
    QObject *context = m_loop.context();
    QMetaObject::invokeMethod(context, [this, context, request, promise] {
        if (!m_manager) {
            m_manager = new QNetworkAccessManager(context);
            m_manager->setProxyFactory(new UserProxies);
        }
        if (!promise->isCanceled())
            new HttpExchange(*m_manager, request, promise);
    });
    return future;
}

} // namespace Kestrune
