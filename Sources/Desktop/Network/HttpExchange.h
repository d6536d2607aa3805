#pragma once

#include "Async/Pledge.h"
#include "NotchKit/Platform/HttpClient.h"

#include <QTimer>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace Kestrune {

/// One request and its reply, on the thread of its manager. Deletes itself once the pledge is given.
class HttpExchange : public QObject
{
    Q_OBJECT

public:
    /// At most so many redirections are followed, and only to https.
    static constexpr int kMostRedirections = 3;

    HttpExchange(QNetworkAccessManager &manager, const HttpRequest &request, const Pledge<HttpReply> &pledge);

private:
    void ask(const QNetworkRequest &request);
    void follow(const QUrl &url);
    void read();
    void pass();
    int status() const;
    void conclude();
    void giveUp(const char *reason);
    void finish(const HttpReply &reply);

    QNetworkAccessManager &m_manager;
    Pledge<HttpReply> m_pledge;
    qint64 m_mostBytes;
    std::shared_ptr<BodySink> m_sink;
    qint64 m_passed = 0; ///< Bytes that came while it waits.
    bool m_isOver = false;
    int m_redirections = 0;
    QByteArray m_body;
    QTimer m_deadline;
    QNetworkReply *m_reply = nullptr;
};

} // namespace Kestrune
