#include "Support/WebStandIn.h"

#include "Support/Lists.h"

#include <QSslConfiguration>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

WebStandIn::WebStandIn(Handler handler)
    : m_handler(std::move(handler))
    , m_scheme(QStringLiteral("http"))
{
    listen(new QTcpServer);
}

WebStandIn::WebStandIn(Handler handler, const QSslConfiguration &tls)
    : m_handler(std::move(handler))
    , m_scheme(QStringLiteral("https"))
{
    auto *server = new QSslServer;
    server->setSslConfiguration(tls);
    listen(server);
}

WebStandIn::~WebStandIn()
{
    m_thread.quit();
    m_thread.wait();
}

void WebStandIn::listen(QTcpServer *server)
{
    m_server = server;
    if (!server->listen(QHostAddress::LocalHost))
        qFatal("no port for the server");
    m_port = server->serverPort();
    QObject::connect(server, &QTcpServer::pendingConnectionAvailable, server, [this] {
        while (m_server->hasPendingConnections())
            serve(m_server->nextPendingConnection());
    });
    QObject::connect(&m_thread, &QThread::finished, server, &QObject::deleteLater);
    server->moveToThread(&m_thread);
    m_thread.start();
}

void WebStandIn::serve(QTcpSocket *socket)
{
    const auto pending = std::make_shared<QByteArray>();
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QTcpSocket::readyRead, socket,
                     [this, socket, pending] { receive(socket, *pending); });
    receive(socket, *pending);
}

void WebStandIn::receive(QTcpSocket *socket, QByteArray &pending)
{
    pending += socket->readAll();
    for (auto end = pending.indexOf("\r\n\r\n"); end >= 0; end = pending.indexOf("\r\n\r\n")) {
        const QList<QByteArray> lines = pending.first(end).split('\n');
        pending.remove(0, end + 4);
        Request request;
        request.target = lines.first().split(' ').value(1);
        for (const QByteArray &line : lines.mid(1)) {
            const auto colon = line.indexOf(':');
            request.headers.insert(line.first(colon).toLower(), line.mid(colon + 1).trimmed());
        }
        {
            const QMutexLocker lock(&m_mutex);
            m_log.append(request);
        }
        send(socket, m_handler(request), 0);
    }
}

void WebStandIn::send(QTcpSocket *socket, const Answer &answer, qsizetype from)
{
    QTimer::singleShot(answer.pause, socket, [socket, answer, from] {
        const qsizetype size = answer.piece > 0 ? answer.piece : answer.bytes.size();
        socket->write(answer.bytes.mid(from, size));
        if (from + size < answer.bytes.size()) {
            send(socket, answer, from + size);
            return;
        }
        if (answer.end == Answer::End::keep)
            return;
        socket->flush();
        if (answer.end == Answer::End::close)
            socket->disconnectFromHost();
        else
            socket->abort();
    });
}

WebStandIn::Answer WebStandIn::page(int status, const QByteArray &body, const QByteArray &headers)
{
    return {"HTTP/1.1 " + QByteArray::number(status) + " Some Reason\r\n" + headers +
            "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body};
}

QUrl WebStandIn::url(const QString &target) const
{
    return QUrl(QStringLiteral("%1://127.0.0.1:%2%3").arg(m_scheme).arg(m_port).arg(target));
}

QList<WebStandIn::Request> WebStandIn::log() const
{
    const QMutexLocker lock(&m_mutex);
    return m_log;
}

QList<QByteArray> WebStandIn::targets() const { return each(log(), &Request::target); }

void WebStandIn::forget()
{
    const QMutexLocker lock(&m_mutex);
    m_log.clear();
}
