#pragma once

#include "NotchKit/Platform/HttpClient.h"

#include <memory>

namespace Kestrune {

/// A server on this computer in place of the web services that the tools ask, for tests. It gets their
/// requests as they are, the services' own names in the Host header.
class LocalServices : public HttpClient
{
public:
    /// The environment variable that names the server: http, a numeric loopback address and a port.
    static constexpr auto kVariable = "KESTRUNE_SERVICES";

    /// Whether the variable, where it is set, names such a server.
    static bool isEnvironmentValid();

    /// Null where the variable is not set. What is asked for goes out through `client`.
    static std::unique_ptr<HttpClient> fromEnvironment(HttpClient &client);

    /// The server that `text` names; an empty address where it names none.
    static QUrl parse(const QString &text);

    LocalServices(HttpClient &client, const QUrl &server);

    QFuture<HttpReply> get(const HttpRequest &request) override;

private:
    HttpClient &m_client;
    QUrl m_server;
};

} // namespace Kestrune
