#include "LocalServices.h"

#include "NotchKit/Platform/Addresses.h"
#include "NotchKit/WebServices.h"

#include <algorithm>

namespace Kestrune {

QUrl LocalServices::parse(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool plain = url == url.adjusted(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery |
                                           QUrl::RemoveFragment);
    const bool named = url.scheme() == QLatin1String("http") && url.port() > 0 && isLoopback(url);
    return plain && named ? url : QUrl();
}

bool LocalServices::isEnvironmentValid()
{
    const QString text = qEnvironmentVariable(kVariable);
    return text.isEmpty() || !parse(text).isEmpty();
}

std::unique_ptr<HttpClient> LocalServices::fromEnvironment(HttpClient &client)
{
    const QUrl server = parse(qEnvironmentVariable(kVariable));
    return server.isEmpty() ? nullptr : std::make_unique<LocalServices>(client, server);
}

LocalServices::LocalServices(HttpClient &client, const QUrl &server)
    : m_client(client)
    , m_server(server)
{}

QFuture<HttpReply> LocalServices::get(const HttpRequest &request)
{
    const QByteArray host = request.url.host().toLatin1();
    const bool isService =
        std::ranges::any_of(WebServices::kAll, [&](const char *service) { return host == service; });
    if (!isService)
        return m_client.get(request);
    HttpRequest local = request;
    local.url.setScheme(m_server.scheme());
    local.url.setHost(m_server.host());
    local.url.setPort(m_server.port());
    local.headers.append({"Host", host});
    return m_client.get(local);
}

} // namespace Kestrune
