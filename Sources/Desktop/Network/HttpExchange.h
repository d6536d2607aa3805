#pragma once

#include "NotchKit/Platform/HttpClient.h"

#include <QFutureWatcher>
#include <QPromise>
#include <QTimer>

#include <memory>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace Kestrune {

/// One request and its reply, on the thread of its manager. Deletes itself once the promise is kept.
class HttpExchange : public QObject
{
    Q_OBJECT

public:
    using Promise = std::shared_ptr<QPromise<HttpReply>>;

    /// At most so many redirections are followed, and only to https.
    static constexpr int kMostRedirections = 3;

    HttpExchange(QNetworkAccessManager &manager, const HttpRequest &request, Promise promise);

private:
    void ask(const QNetworkRequest &request);
    void follow(const QUrl &url);
    void read();
    void conclude();
    void giveUp() { finish({}); }
    void finish(const HttpReply &reply);

    QNetworkAccessManager &m_manager;
    Promise m_promise;
    qint64 m_mostBytes;
    int m_redirections = 0;
    QByteArray m_body;
    QFutureWatcher<HttpReply> m_watcher;
    QTimer m_deadline;
    QNetworkReply *m_reply = nullptr;
};

} // namespace Kestrune
