#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QMutex>
#include <QThread>
#include <QUrl>

#include <chrono>
#include <functional>

class QSslConfiguration;
class QTcpServer;
class QTcpSocket;

/// A web server on a loopback port, on a thread of its own, which answers as a test says and keeps a log.
struct WebStandIn
{
    struct Request
    {
        QByteArray target;                    ///< Path and query as they were sent.
        QMap<QByteArray, QByteArray> headers; ///< Names in lower case.

        QByteArray header(const char *name) const { return headers.value(name); }
    };

    /// What is sent, byte for byte, and how.
    struct Answer
    {
        QByteArray bytes;
        qsizetype piece = 0;                ///< Sent in pieces of that many bytes; 0 for all at once.
        std::chrono::milliseconds pause{0}; ///< Before each piece.
        enum class End { keep, close, reset } end = End::keep;
    };

    /// Called on the server's thread.
    using Handler = std::function<Answer(const Request &)>;

    explicit WebStandIn(Handler handler);

    /// Speaks TLS.
    WebStandIn(Handler handler, const QSslConfiguration &tls);
    ~WebStandIn();
    Q_DISABLE_COPY_MOVE(WebStandIn)

    /// A whole reply with its length.
    static Answer page(int status, const QByteArray &body, const QByteArray &headers = {});

    quint16 port() const { return m_port; }
    QUrl url(const QString &target = {}) const;

    /// Every request so far, in the order in which they came.
    QList<Request> log() const;
    QList<QByteArray> targets() const;
    void forget();

private:
    void listen(QTcpServer *server);
    void serve(QTcpSocket *socket);
    void receive(QTcpSocket *socket, QByteArray &pending);
    static void send(QTcpSocket *socket, const Answer &answer, qsizetype from);

    Handler m_handler;
    QThread m_thread;
    QTcpServer *m_server = nullptr;
    quint16 m_port = 0;
    QString m_scheme;
    mutable QMutex m_mutex;
    QList<Request> m_log;
};
