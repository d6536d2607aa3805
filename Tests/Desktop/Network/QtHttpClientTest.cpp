#include "Desktop/Network/QtHttpClient.h"
#include "Support/TestRegistry.h"
#include "Support/WebStandIn.h"

#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>

namespace {

using Answer = WebStandIn::Answer;
using End = WebStandIn::Answer::End;

constexpr qint64 kMost = 100'000;

/// What the shell command prints, packed; kept out of this process before it is.
QByteArray zipped(const QString &command)
{
    QProcess shell;
    shell.start(u"sh"_s, {u"-c"_s, command + u" | gzip -9"_s});
    shell.waitForFinished();
    return shell.readAllStandardOutput();
}

/// Zeros, which shrink to a thousandth.
QByteArray zeros(int size) { return zipped(u"head -c %1 /dev/zero"_s.arg(size)); }

Answer ended(Answer answer, End end)
{
    answer.end = end;
    return answer;
}

Answer slow(Answer answer, qsizetype piece, std::chrono::milliseconds pause)
{
    answer.piece = piece;
    answer.pause = pause;
    return answer;
}

/// A certificate for 127.0.0.1 that nobody vouches for but itself.
QSslConfiguration selfSigned()
{
    const QTemporaryDir folder;
    const QString key = folder.filePath(u"key"_s);
    const QString certificate = folder.filePath(u"certificate"_s);
    QProcess openssl;
    openssl.start(u"openssl"_s,
                  {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-days"_s, u"2"_s,
                   u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s,
                   u"-keyout"_s, key, u"-out"_s, certificate});
    openssl.waitForFinished();
    QFile keyFile(key);
    if (!keyFile.open(QFile::ReadOnly))
        qFatal("no certificate");
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    tls.setLocalCertificateChain(QSslCertificate::fromPath(certificate));
    return tls;
}

/// Counts what goes into it, and takes at most so much.
struct CountingSink : BodySink
{
    explicit CountingSink(qint64 most = std::numeric_limits<qint64>::max())
        : room(most)
    {}
    bool take(const QByteArray &piece) override
    {
        taken += piece.size();
        return taken <= room;
    }

    qint64 room;
    std::atomic<qint64> taken = 0;
};

} // namespace

/// The adapter against a server of the test's own, polite and otherwise.
class QtHttpClientTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replies_data()
    {
        // status: 0 for no reply
        const auto row = columns<WebStandIn::Answer, int, qsizetype>();
        const auto raw = [](const QByteArray &bytes, End end) { return ended({bytes}, end); };
        const QByteArray chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
        const auto gzip = [](const QByteArray &body) {
            return WebStandIn::page(200, body, "Content-Encoding: gzip\r\n");
        };
        row("whole", WebStandIn::page(200, "{}"), 200, 2);
        row("in pieces", slow(WebStandIn::page(200, QByteArray(500, 'x')), 50, 5ms), 200, 500);
        row("chunked", raw(chunked + "3\r\nabc\r\n0\r\n\r\n", End::keep), 200, 3);
        row("until it closes", raw("HTTP/1.0 200 OK\r\n\r\nabcd", End::close), 200, 4);
        row("empty", WebStandIn::page(204, {}), 204, 0);
        row("not found", WebStandIn::page(404, "<html>"), 404, 6);
        row("server error", WebStandIn::page(503, "busy"), 503, 4);
        row("wants a password", WebStandIn::page(401, "who", "WWW-Authenticate: Basic realm=\"x\"\r\n"), 401,
            3);
        row("just small enough", WebStandIn::page(200, QByteArray(kMost, 'x')), 200, kMost);
        row("too large", WebStandIn::page(200, QByteArray(kMost + 1, 'x')), 0, 0);
        row("too large, chunked", raw(chunked + "30d41\r\n" + QByteArray(200'001, 'x'), End::keep), 0, 0);
        row("truncated", raw("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nabc", End::close), 0, 0);
        row("reset", raw("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nabc", End::reset), 0, 0);
        row("reset at once", raw({}, End::reset), 0, 0);
        row("no HTTP", raw("SSH-2.0-x\r\n\r\n", End::close), 0, 0);
        row("slow drip", slow(WebStandIn::page(200, QByteArray(5000, 'x')), 1, 50ms), 0, 0);
        row("silence", raw({}, End::keep), 0, 0);
        row("to http", WebStandIn::page(302, {}, "Location: /other\r\n"), 0, 0);
        row("to a file", WebStandIn::page(302, {}, "Location: file:///etc/hostname\r\n"), 0, 0);
        row("to nowhere", WebStandIn::page(302, {}, "Location: https://127.0.0.1:1/\r\n"), 0, 0);
        row("packed", gzip(zeros(1000)), 200, 1000);
        row("packed too large", gzip(zipped(u"seq 40000"_s)), 0, 0);
        row("packed bomb", gzip(zeros(50'000'000)), 0, 0);
    }

    void replies()
    {
        const auto [answer, status, size] = fetched<WebStandIn::Answer, int, qsizetype>();
        const WebStandIn server([&](const auto &) { return answer; });
        QtHttpClient client;
        // Only what never comes as a whole is waited for in vain.
        const HttpReply reply = fetch(client, server.url(u"/first"_s), status == 0 ? 1500ms : 60s);
        QCOMPARE(reply.status, status);
        QCOMPARE(reply.body.size(), size);
        for (const QByteArray &target : server.targets())
            QCOMPARE(target, "/first"); // Qt asks a second time after a reset
    }

    void sendsNothingOfItsOwn()
    {
        const WebStandIn server([](const auto &) {
            return WebStandIn::page(200, "{}",
                                    "Set-Cookie: a=b; Path=/\r\nETag: \"e\"\r\nCache-Control: max-age=9\r\n");
        });
        QtHttpClient client;
        const QLocale before;
        QLocale::setDefault(QLocale(u"de_DE"_s));
        fetch(client, server.url(u"/a%5Eb?c=San%20Jos%C3%A9"_s));
        const auto future =
            client.get({server.url(u"/2"_s), {{"User-Agent", "Own"}, {"Host", "example.org"}}, 60s, 9});
        QTRY_VERIFY(future.isFinished());
        QLocale::setDefault(before);
        const auto log = server.log();
        QCOMPARE(log.size(), 2);
        QCOMPARE(log.at(0).target, "/a%5Eb?c=San%20Jos%C3%A9");
        QCOMPARE(log.at(0).headers.keys(), (QList<QByteArray>{"accept-encoding", "accept-language",
                                                              "connection", "host", "user-agent"}));
        QCOMPARE(log.at(0).header("accept-language"), "*");
        QCOMPARE(log.at(0).header("user-agent"), "Mozilla/5.0");
        QCOMPARE(log.at(1).headers.keys(), log.at(0).headers.keys());
        QCOMPARE(log.at(1).header("user-agent"), "Own");
        QCOMPARE(log.at(1).header("host"), "example.org");
    }

    void boundsMemory()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizer keeps what was freed");
#endif
        const QByteArray bomb = zeros(300'000'000);
        const QByteArray large(60'000'000, 'x');
        QCOMPARE_GT(bomb.size(), 100'000);
        const WebStandIn server([&](const WebStandIn::Request &request) {
            return request.target == "/bomb" ? WebStandIn::page(200, bomb, "Content-Encoding: gzip\r\n")
                                             : slow(WebStandIn::page(200, large), 1'000'000, 1ms);
        });
        QtHttpClient client;
        QVERIFY(writeFile(u"/proc/self/clear_refs"_s, "5")); // the peak is counted from here
        const qint64 before = processFigure("status", "VmHWM:");
        for (const QString &target : {u"/bomb"_s, u"/large"_s, u"/bomb"_s, u"/large"_s})
            QCOMPARE(fetch(client, server.url(target), 5s).status, 0);
        QCOMPARE_LT(processFigure("status", "VmHWM:") - before, 100'000);
    }

    void intoASink_data()
    {
        // status: 0 for no reply; taken: bytes that went into the sink
        const auto row = columns<WebStandIn::Answer, qint64, int, qint64>();
        const Answer page = WebStandIn::page(200, QByteArray(5000, 'x'));
        row("whole", page, 9000, 200, 5000);
        row("not found", WebStandIn::page(404, QByteArray(5000, 'x')), 9000, 404, 0);
        row("not found, endless", WebStandIn::page(404, QByteArray(kMost + 1, 'x')), 9000, 0, 0);
        row("to http", WebStandIn::page(302, "moved", "Location: /other\r\n"), 9000, 0, 0);
        row("full", page, 100, 0, 5000);
        row("packed", WebStandIn::page(200, zeros(5000), "Content-Encoding: gzip\r\n"), 9000, 200,
            zeros(5000).size());
        row("truncated", ended({page.bytes.chopped(1)}, End::close), 9000, 0, 4999);
    }
    void intoASink()
    {
        const auto [answer, room, status, taken] = fetched<WebStandIn::Answer, qint64, int, qint64>();
        const WebStandIn server([&](const auto &) { return answer; });
        QtHttpClient client;
        const auto sink = std::make_shared<CountingSink>(room);
        const HttpReply reply = fetch(client, server.url(u"/"_s), 60s, sink);
        QCOMPARE(reply.status, status);
        QCOMPARE(reply.body, "");
        QCOMPARE(sink->taken, taken);
        QCOMPARE(server.log().constFirst().header("accept-encoding"), "identity");
    }

    /// A piece is passed on when it is there, not when all are.
    void intoASinkAsItComes()
    {
        const QByteArray page = WebStandIn::page(200, QByteArray(5000, 'x')).bytes;
        const WebStandIn server([&](const auto &) { return Answer{page.chopped(2500)}; });
        QtHttpClient client;
        const auto sink = std::make_shared<CountingSink>();
        auto reply = client.get({server.url(u"/"_s), {}, 1h, kMost, sink});
        QTRY_COMPARE(sink->taken, 2500);
        QVERIFY(!reply.isFinished());
        reply.cancel();
        QTRY_COMPARE(sink.use_count(), 1);
    }

    void cancelledAndLeftBehind()
    {
        const WebStandIn server([](const auto &) { return Answer{}; }); // silent
        auto client = std::make_unique<QtHttpClient>();
        auto given = client->get({server.url(u"/given-up"_s), {}, 60s, kMost});
        QTRY_COMPARE(server.log().size(), 1);
        given.cancel();
        QTRY_VERIFY(given.isFinished());
        const auto left = client->get({server.url(u"/left"_s), {}, 1h, kMost}); // which nobody would sit out
        QTRY_COMPARE(server.log().size(), 2);
        client.reset();
        QVERIFY(left.isFinished() && left.result().status == 0);
    }

    void certificates()
    {
        const QSslConfiguration tls = selfSigned();
        const WebStandIn server(
            [](const WebStandIn::Request &request) {
                if (request.target == "/loop")
                    return WebStandIn::page(302, {}, "Location: /loop\r\n");
                if (request.target == "/large")
                    return WebStandIn::page(200, QByteArray(5'000'000, 'x'));
                return request.target == "/moved" ? WebStandIn::page(301, {}, "Location: /here\r\n")
                                                  : WebStandIn::page(200, "secret");
            },
            tls);
        {
            QtHttpClient client;
            QCOMPARE(fetch(client, server.url(u"/here"_s)).status, 0);
            QVERIFY2(server.log().isEmpty(), "it told an unknown server what it wants");
        }
        const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = before;
        trusting.addCaCertificates(tls.localCertificateChain());
        QSslConfiguration::setDefaultConfiguration(trusting);
        QtHttpClient client;
        QCOMPARE(fetch(client, server.url(u"/moved"_s)).body, "secret");
        const auto sink = std::make_shared<CountingSink>();
        const auto large = client.get({server.url(u"/large"_s), {}, 60s, 5'000'000, sink});
        QTRY_VERIFY_WITH_TIMEOUT(large.isFinished(), 120'000);
        QCOMPARE(large.result().status, 200);
        QCOMPARE(sink->taken, 5'000'000);
        QUrl otherName = server.url(u"/here"_s);
        otherName.setHost(u"localhost"_s);
        QCOMPARE(fetch(client, otherName).status, 0);
        QCOMPARE(fetch(client, server.url(u"/loop"_s)).status, 0);
        QSslConfiguration::setDefaultConfiguration(before);
        QCOMPARE(server.targets().count("/loop"), 4); // the first and three redirections
    }

    void addressesAndProxy()
    {
        const WebStandIn proxy([](const auto &) { return WebStandIn::page(502, "no"); });
        const QByteArray address = proxy.url().toEncoded();
        for (const char *name : {"http_proxy", "https_proxy"})
            qputenv(name, address);
        QtHttpClient client;
        for (const char *refused : {"http://example.invalid/", "http://localhost/", "ftp://127.0.0.1/",
                                    "file:///etc/hostname", "https:///x", ""})
            QCOMPARE(fetch(client, QUrl(QString::fromLatin1(refused))).status, 0);
        QVERIFY(proxy.log().isEmpty());
        QCOMPARE(fetch(client, QUrl(u"https://example.invalid/x"_s)).status, 0);
        QCOMPARE(proxy.targets().value(0), "example.invalid:443");
        const WebStandIn direct([](const auto &) { return WebStandIn::page(200, "direct"); });
        QCOMPARE(fetch(client, direct.url(u"/"_s)).body, "direct");
        for (const char *name : {"http_proxy", "https_proxy"})
            qunsetenv(name);
    }

private:
    static HttpReply fetch(HttpClient &client, const QUrl &url, std::chrono::milliseconds timeout = 60s,
                           const std::shared_ptr<BodySink> &sink = nullptr)
    {
        const auto future = client.get({url, {}, timeout, kMost, sink});
        return QTest::qWaitFor([&] { return future.isFinished(); }, 120'000) && !future.isCanceled()
                   ? future.result()
                   : HttpReply{-1, {}};
    }
};

REGISTER_TEST(QtHttpClientTest);
#include "QtHttpClientTest.moc"
