#include "HttpExchange.h"

#include <QLoggingCategory>
#include <QMetaEnum>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(networkLog, "kestrune.network", QtWarningMsg)

constexpr qint64 kPiece = qint64{64} * 1024; // Of a body that goes into a sink.

/// The request as Qt sends it, without anything that says more about the user than the caller does.
QNetworkRequest prepare(const HttpRequest &request)
{
    using Qt = QNetworkRequest;
    Qt prepared(request.url);
    prepared.setAttribute(Qt::RedirectPolicyAttribute, Qt::ManualRedirectPolicy);
    prepared.setAttribute(Qt::CookieLoadControlAttribute, Qt::Manual);
    prepared.setAttribute(Qt::CookieSaveControlAttribute, Qt::Manual);
    prepared.setAttribute(Qt::AuthenticationReuseAttribute, Qt::Manual);
    prepared.setAttribute(Qt::CacheSaveControlAttribute, false);
    prepared.setAttribute(Qt::Http2AllowedAttribute, false);
    // A reply that grows out of all proportion when it is unpacked is refused before it does.
    prepared.setDecompressedSafetyCheckThreshold(request.mostBytes);
    // Otherwise the user's languages would be sent. That of the program, "Mozilla/5.0" where none is given,
    // tells nothing.
    prepared.setRawHeader("Accept-Language", "*");
    if (request.sink)
        prepared.setRawHeader("Accept-Encoding", "identity"); // Else Qt unpacks, into memory of its own.
    for (const auto &[name, value] : request.headers)
        prepared.setRawHeader(name, value);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    prepared.setSslConfiguration(tls);
    return prepared;
}

/// Qt's own name. Its sentence would hold the address.
const char *errorName(QNetworkReply::NetworkError error)
{
    return QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(error);
}

} // namespace

HttpExchange::HttpExchange(QNetworkAccessManager &manager, const HttpRequest &request,
                           const Pledge<HttpReply> &pledge)
    : QObject(&manager)
    , m_manager(manager)
    , m_pledge(pledge)
    , m_mostBytes(request.mostBytes)
    , m_sink(request.sink)
{
    m_pledge.whenGivenUp(this, [this] { giveUp("nobody waits for it any more"); });
    connect(&m_deadline, &QTimer::timeout, this, [this] { giveUp("it took too long"); });
    m_deadline.setSingleShot(true);
    m_deadline.start(request.timeout);
    ask(prepare(request));
}

void HttpExchange::ask(const QNetworkRequest &request)
{
    m_reply = m_manager.get(request);
    m_reply->setParent(this);
    m_reply->setReadBufferSize(m_sink ? 4 * kPiece : m_mostBytes + 1);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpExchange::read);
    connect(m_reply, &QNetworkReply::finished, this, &HttpExchange::conclude);
}

/// By hand: left to the manager, each further redirection is asked for several times over.
void HttpExchange::follow(const QUrl &url)
{
    if (url.scheme() != QLatin1String("https") || ++m_redirections > kMostRedirections) {
        giveUp("one redirection too many, or to an address without https");
        return;
    }
    QNetworkRequest next = m_reply->request();
    next.setUrl(url);
    m_reply->disconnect(this);
    m_reply->deleteLater();
    m_body.clear();
    m_passed = 0;
    ask(next);
}

void HttpExchange::read()
{
    if (m_sink) {
        pass();
        return;
    }
    // Bounded: what is compressed is unpacked as it is read.
    m_body += m_reply->read(m_mostBytes + 1 - m_body.size());
    if (m_body.size() > m_mostBytes)
        giveUp("it is too long");
}

void HttpExchange::pass()
{
    const bool isWanted = HttpReply{status(), {}}.isGood();
    for (QByteArray piece = m_reply->read(kPiece); !piece.isEmpty(); piece = m_reply->read(kPiece)) {
        m_passed += piece.size();
        if (m_passed > m_mostBytes) {
            giveUp("it is too long");
            return;
        }
        if (isWanted && !m_sink->take(piece)) {
            giveUp("what it goes into takes no more");
            return;
        }
    }
}

int HttpExchange::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

void HttpExchange::conclude()
{
    read();
    if (m_isOver)
        return;
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty()) {
        follow(m_reply->url().resolved(target));
        return;
    }
    // An error page is a reply, one that broke off is none.
    const int number = status();
    if (number >= 400 || (number >= 200 && m_reply->error() == QNetworkReply::NoError))
        finish({number, m_body});
    else
        giveUp(errorName(m_reply->error()));
}

void HttpExchange::giveUp(const char *reason)
{
    qCInfo(networkLog, "a request was given up: %s", reason);
    finish({});
}

void HttpExchange::finish(const HttpReply &reply)
{
    qCDebug(networkLog, "a reply of status %d, %lld bytes", reply.status,
            static_cast<long long>(reply.body.size()));
    m_isOver = true;
    m_sink.reset();
    m_reply->disconnect(this);
    m_pledge.give(reply);
    deleteLater(); // and with it the reply, which ends what still comes
}

} // namespace Kestrune
