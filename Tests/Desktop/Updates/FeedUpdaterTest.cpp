#include "NotchKit/Updates/FeedUpdater.h"
#include "Desktop/Network/QtHttpClient.h"
#include "Desktop/Updates/SignedReleases.h"
#include "Support/FakePlatform.h"
#include "Support/ReleaseSigner.h"
#include "Support/TestRegistry.h"
#include "Support/WebStandIn.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Phase = UpdateStatus::Phase;
using Reply = WebStandIn::Answer;

const QByteArray kPackage = "a package";

/// The updater of version 1.2.0, with a server of the makers' that gives what the test says.
struct Stage : Fakes::Platform
{
    /// Without another word the updater is more patient than the slowest machine needs.
    explicit Stage(std::chrono::milliseconds patience = 60s)
        : updater({server.url(u"/feed"_s), *SemanticVersion::parse(u"1.2.0"_s), patience},
                  std::make_unique<SignedReleases>(keys(), folder.filePath(u"updates"_s)),
                  ports({.http = &client}))
    {
        QObject::connect(&updater, &Updater::changed, &updater, [this] {
            const Phase phase = updater.status().phase;
            if (phases.isEmpty() || phases.last() != phase)
                phases.append(phase);
        });
    }

    MakerKeys keys() const
    {
        return {*ReleaseKey::fromBase64(signer.publicHalf()), *ReleaseKey::fromBase64(offline.publicHalf())};
    }
    QJsonObject entry(const QString &version) const
    {
        return signer.entry(version, server.url(u"/kestrune.deb"_s), kPackage);
    }
    Phase check(const Reply &reply)
    {
        feed = reply;
        updater.checkForUpdates();
        return settled();
    }
    Phase check(const QString &version) { return check(page(entry(version))); }
    Reply page(const QJsonObject &entry) const { return WebStandIn::page(200, signer.feed(entry)); }

    /// Once what is under way is over.
    Phase settled()
    {
        const auto phase = [this] { return updater.status().phase; };
        const auto over = [&] { return phase() != Phase::checking && phase() != Phase::fetching; };
        if (!QTest::qWaitFor(over, 120'000))
            qWarning("it goes on and on");
        return phase();
    }

    ReleaseSigner signer;
    ReleaseSigner offline;
    Reply feed; ///< Changed between requests only.
    Reply package = WebStandIn::page(200, kPackage);
    WebStandIn server{[this](const auto &request) { return request.target == "/feed" ? feed : package; }};
    QTemporaryDir folder;
    QString path = folder.filePath(u"updates/kestrune.deb"_s);
    QtHttpClient client;
    QList<Phase> phases; ///< One after the other, as the updater told of them.
    FeedUpdater updater;
    QSignalSpy attention{&updater, &Updater::attentionWanted};
};

mode_t modeOf(const QString &path)
{
    struct stat is = {};
    return ::stat(path.toLocal8Bit().constData(), &is) == 0 ? is.st_mode & 07777 : 0;
}

} // namespace

/// What the updater makes of feeds and packages, right and wrong, over a real connection.
class FeedUpdaterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versionsInTheirOrder()
    {
        const QStringList ascending{
            u"0.9.9"_s,      u"1.0.0-alpha"_s,  u"1.0.0-alpha.1"_s, u"1.0.0-alpha.beta"_s,
            u"1.0.0-beta"_s, u"1.0.0-beta.2"_s, u"1.0.0-beta.11"_s, u"1.0.0-rc.1"_s,
            u"1.0.0"_s,      u"1.0.9"_s,        u"1.0.10"_s,        u"1.10.0"_s,
            u"2.0.0"_s};
        for (qsizetype i = 0; i < ascending.size(); ++i) {
            for (qsizetype j = 0; j < ascending.size(); ++j)
                QVERIFY2((*SemanticVersion::parse(ascending[i]) <=> *SemanticVersion::parse(ascending[j])) ==
                             (i <=> j),
                         qPrintable(ascending[i] + u" and "_s + ascending[j]));
        }
        QVERIFY(*SemanticVersion::parse(u"1.0.0+5"_s) == *SemanticVersion::parse(u"1.0.0"_s));
        for (const QString &wrong :
             {u""_s, u"1"_s, u"1.2"_s, u"1.2.3.4"_s, u"v1.2.3"_s, u"1.2.3-"_s, u"1.2.x"_s, u"1.2.3\n"_s})
            QVERIFY2(!SemanticVersion::parse(wrong), qPrintable(wrong));
    }

    void feeds_data()
    {
        columns<std::function<Reply(const Stage &)>, UpdateStatus::Phase>();
        const auto row = [](const char *name, Phase phase, const std::function<Reply(const Stage &)> &reply) {
            QTest::newRow(name) << reply << phase;
        };
        const auto of = [](const QString &version) {
            return [version](const Stage &stage) { return stage.page(stage.entry(version)); };
        };
        const auto raw = [](const Reply &reply) { return [reply](const Stage &) { return reply; }; };
        const auto with = [](const QString &key, const QJsonValue &value) {
            return [key, value](const Stage &stage) {
                QJsonObject entry = stage.entry(u"1.3.0"_s);
                entry[key] = value;
                return stage.page(entry);
            };
        };
        row("newer", Phase::available, of(u"1.3.0"_s));
        row("same", Phase::current, of(u"1.2.0"_s));
        row("older", Phase::current, of(u"1.1.9"_s));
        row("test version", Phase::current, of(u"1.2.0-rc.1"_s));
        row("altered", Phase::failed, [](const Stage &stage) {
            const auto text = [&](const QString &version) {
                return ReleaseSigner::json(stage.entry(version)).toBase64();
            };
            QByteArray feed = stage.signer.feed(stage.entry(u"1.3.0"_s));
            return WebStandIn::page(200, feed.replace(text(u"1.3.0"_s), text(u"1.4.0"_s)));
        });
        row("wrong key", Phase::failed, [](const Stage &stage) {
            return WebStandIn::page(200, ReleaseSigner().feed(stage.entry(u"1.3.0"_s)));
        });
        row("to plain http", Phase::failed, [](const Stage &stage) {
            return WebStandIn::page(302, {},
                                    "Location: " + stage.server.url(u"/kestrune.deb"_s).toEncoded() + "\r\n");
        });
        row("slow", Phase::failed, [](const Stage &stage) {
            Reply reply = stage.page(stage.entry(u"1.3.0"_s));
            reply.piece = 1;
            reply.pause = 20ms;
            return reply;
        });
        row("gone", Phase::failed, raw({{}, 0, 0ms, Reply::End::reset}));
        row("not found", Phase::failed, raw(WebStandIn::page(404, "no")));
        row("no feed", Phase::failed, raw(WebStandIn::page(200, "<html>")));
        row("endless", Phase::failed, raw(WebStandIn::page(200, QByteArray(300'000, ' '))));
        row("package over plain http", Phase::failed, with(u"package"_s, u"http://host/kestrune.deb"_s));
        row("package without a name", Phase::failed, with(u"package"_s, u"https://host/a%2F..%2F.."_s));
        row("no version", Phase::failed, with(u"version"_s, 9));
        row("no size", Phase::failed, with(u"size"_s, -1));
        row("no hash", Phase::failed, with(u"sha256"_s, u"?"_s));
        row("expires in a second", Phase::available, with(u"expires"_s, u"2027-01-15T08:00:01Z"_s));
        row("expired", Phase::failed, with(u"expires"_s, u"2027-01-15T08:00:00Z"_s));
        row("of tomorrow", Phase::available, with(u"issued"_s, u"2027-01-16T08:00:00Z"_s));
        row("of the future", Phase::failed, with(u"issued"_s, u"2027-01-16T08:00:01Z"_s));
        row("never issued", Phase::failed, with(u"issued"_s, QJsonValue()));
        row("expires never", Phase::failed, with(u"expires"_s, QJsonValue()));
        row("expires somewhere", Phase::failed, with(u"expires"_s, u"2027-04-15T08:00:00"_s));
        row("expires elsewhere", Phase::failed, with(u"expires"_s, u"2027-04-15T08:00:00+01:00"_s));
        row("expires on no day", Phase::failed, with(u"expires"_s, u"2027-02-30T08:00:00Z"_s));
    }
    void feeds()
    {
        const auto [reply, phase] = fetched<std::function<Reply(const Stage &)>, UpdateStatus::Phase>();
        const bool slow = QTest::currentDataTag() == "slow"_ba;
        Stage stage(slow ? 700ms : 60s);
        QCOMPARE(stage.check(reply(stage)), phase);
        QCOMPARE(stage.updater.status().message.isEmpty(), phase != Phase::failed);
        QCOMPARE(stage.updater.status().notes, phase == Phase::available ? u"New in 1.3.0"_s : QString());
        QCOMPARE(stage.attention.count(), 1);
        QVERIFY(!stage.server.targets().contains("/kestrune.deb")); // nothing is fetched unasked
    }

    /// Plain http is for tests, whose feed comes that way itself.
    void aPackageOverPlainHttp_data() { noAndYes("https", "http"); }
    void aPackageOverPlainHttp()
    {
        const auto [plain] = fetched<bool>();
        Stage stage;
        const QUrl feed(u"https://host/feed"_s);
        const QUrl package((plain ? u"http"_s : u"https"_s) + u"://127.0.0.1:1/kestrune.deb"_s);
        const QByteArray text = stage.signer.feed(stage.signer.entry(u"1.3.0"_s, package, kPackage));
        stage.http.replies[feed.toString()] = {200, text};
        FeedUpdater updater({feed, *SemanticVersion::parse(u"1.2.0"_s)},
                            std::make_unique<SignedReleases>(stage.keys(), stage.path), stage.ports());
        updater.checkForUpdates();
        QTRY_COMPARE(updater.status().phase, plain ? Phase::failed : Phase::available);
    }

    void anOldFeedIsNotPlayedBack()
    {
        Stage stage;
        QCOMPARE(stage.check(u"1.4.0"_s), Phase::available);
        QCOMPARE(stage.check(u"1.3.0"_s), Phase::failed);
        QCOMPARE(stage.check(u"1.4.0"_s), Phase::available);
        QJsonObject expired = stage.entry(u"9.0.0"_s);
        expired[u"expires"_s] = expired[u"issued"_s];
        QCOMPARE(stage.check(stage.page(expired)), Phase::failed);
        QCOMPARE(stage.check(u"1.4.0"_s), Phase::available); // What is not believed is not remembered.
    }

    void aReplacedKey()
    {
        Stage stage;
        const ReleaseSigner second;
        const ReleaseSigner third;
        const auto check = [&](const ReleaseSigner &signer, int number, const QString &version) {
            const QJsonObject replacement = stage.offline.replacement(number, signer.publicHalf());
            return stage.check(WebStandIn::page(200, signer.feed(stage.entry(version), replacement)));
        };
        QCOMPARE(stage.check(u"9.0.0"_s), Phase::available); // By a thief.
        QCOMPARE(check(second, 1, u"1.3.0"_s), Phase::available);
        QCOMPARE(check(second, 1, u"1.2.9"_s), Phase::failed);
        QCOMPARE(stage.check(u"9.1.0"_s), Phase::failed);
        QCOMPARE(check(third, 3, u"1.4.0"_s), Phase::available);
        QCOMPARE(check(second, 1, u"9.2.0"_s), Phase::failed);
        QCOMPARE(check(third, 3, u"1.4.0"_s), Phase::available);
    }

    void wrongReplacements_data()
    {
        const auto row = columns<std::function<QJsonObject(const Stage &, const QByteArray &)>>();
        const auto numbered = [](const QJsonValue &number) {
            return [number](const Stage &stage, const QByteArray &key) {
                return stage.offline.replacement(number, key);
            };
        };
        const auto without = [](const QString &member) {
            return [member](const Stage &stage, const QByteArray &key) {
                QJsonObject replacement = stage.offline.replacement(1, key);
                replacement[member] = QJsonValue::Null;
                return replacement;
            };
        };
        row("none", [](const Stage &, const QByteArray &) { return QJsonObject(); });
        row("by the everyday key",
            [](const Stage &stage, const QByteArray &key) { return stage.signer.replacement(1, key); });
        row("with another key", [](const Stage &stage, const QByteArray &) {
            return stage.offline.replacement(1, ReleaseSigner().publicHalf());
        });
        row("with no key", [](const Stage &stage, const QByteArray &key) {
            return stage.offline.replacement(1, key.chopped(4));
        });
        row("number 0", numbered(0));
        row("number 1.5", numbered(1.5));
        row("a text as number", numbered(u"1"_s));
        row("an endless number", numbered(1e300));
        row("no signature", without(u"replacementSignature"_s));
        row("no text", without(u"replacement"_s));
    }
    /// None makes a copy believe another key, nor the old one less.
    void wrongReplacements()
    {
        const auto [make] = fetched<std::function<QJsonObject(const Stage &, const QByteArray &)>>();
        Stage stage;
        const ReleaseSigner other;
        const QJsonObject replacement = make(stage, other.publicHalf());
        QCOMPARE(stage.check(WebStandIn::page(200, other.feed(stage.entry(u"1.3.0"_s), replacement))),
                 Phase::failed);
        QCOMPARE(stage.check(u"1.3.0"_s), Phase::available);
    }

    void aPackageThatWaitsTooLong()
    {
        Stage stage;
        QCOMPARE(stage.check(u"1.3.0"_s), Phase::available);
        stage.updater.fetchUpdate();
        QCOMPARE(stage.settled(), Phase::ready);
        stage.clock.advance(24h * 90);
        stage.updater.installUpdate();
        QTRY_COMPARE(stage.updater.status().phase, Phase::failed);
        QVERIFY(stage.updater.status().message.contains(u"expired"_s));
        QVERIFY(stage.workspace.opened.isEmpty());
    }

    void packages_data()
    {
        // told: of its size, beyond the truth
        const auto row = columns<WebStandIn::Answer, int, UpdateStatus::Phase>();
        const Reply whole = WebStandIn::page(200, kPackage);
        row("whole", whole, 0, Phase::ready);
        row("truncated", WebStandIn::page(200, kPackage.chopped(1)), 0, Phase::failed);
        row("broken off", Reply{whole.bytes.chopped(1), 0, 0ms, Reply::End::close}, 0, Phase::failed);
        row("altered", WebStandIn::page(200, "b package"), 0, Phase::failed);
        row("longer than told", whole, -1, Phase::failed);
        row("shorter than told", whole, 1, Phase::failed);
        row("gone", WebStandIn::page(410, {}), 0, Phase::failed);
    }
    void packages()
    {
        const auto [reply, told, phase] = fetched<WebStandIn::Answer, int, UpdateStatus::Phase>();
        Stage stage;
        stage.package = reply;
        QJsonObject entry = stage.entry(u"1.3.0"_s);
        entry[u"size"_s] = kPackage.size() + told;
        QCOMPARE(stage.check(stage.page(entry)), Phase::available);
        stage.phases.clear();
        stage.updater.fetchUpdate();
        QCOMPARE(stage.settled(), phase);
        QCOMPARE(stage.phases, (QList<Phase>{Phase::fetching, phase}));
        QCOMPARE(stage.attention.count(), 2);
        QCOMPARE(QFile::exists(stage.path), phase == Phase::ready);
    }

    void aDiskThatTakesNothing_data() { texts({"unwritable", "full", "linked"}); }
    void aDiskThatTakesNothing()
    {
        const auto [kind] = fetched<QString>();
        Stage stage;
        QCOMPARE(stage.check(u"1.3.0"_s), Phase::available);
        const QString place = stage.folder.filePath(u"updates"_s);
        const QTemporaryDir elsewhere; // What a link leads to is left alone.
        QVERIFY(writeFile(elsewhere.filePath(u"kestrune.deb"_s), "precious"));
        QVERIFY(kind != u"unwritable" || writeFile(place));
        QVERIFY(kind != u"linked" || QFile::link(elsewhere.path(), place));
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit tight{kind == u"full" ? 4 : before.rlim_cur, before.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &tight);
        stage.updater.fetchUpdate();
        const Phase phase = stage.settled();
        setrlimit(RLIMIT_FSIZE, &before);
        QCOMPARE(phase, Phase::failed);
        QVERIFY(stage.updater.status().message.contains(u"disk"_s));
        QVERIFY(kind == u"linked" || !QFile::exists(stage.path));
        QCOMPARE(QDir(elsewhere.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"kestrune.deb"_s});
        QCOMPARE(readFile(elsewhere.filePath(u"kestrune.deb"_s)), "precious");
    }

    void aKeptPackage_data()
    {
        const auto row = columns<std::function<void(const QString &)>>();
        row("changed", [](const QString &path) {
            QFile file(path);
            QCOMPARE(modeOf(path), 0400U);
            QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
            QVERIFY(file.open(QFile::ReadWrite) && file.write("b") == 1);
        });
        row("a link to the like", [](const QString &path) {
            QVERIFY(QFile::rename(path, path + u'2') && QFile::link(path + u'2', path));
        });
        row("with a second name", [](const QString &path) {
            QCOMPARE(::link(path.toLocal8Bit().constData(), (path + u'2').toLocal8Bit().constData()), 0);
        });
        row("in a linked folder", [](const QString &path) {
            const QString folder = QFileInfo(path).path();
            QVERIFY(QFile::rename(folder, folder + u'2') && QFile::link(folder + u'2', folder));
        });
        row("in a folder for all", [](const QString &path) {
            const QString folder = QFileInfo(path).path();
            const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
            QCOMPARE(modeOf(folder), 0700U);
            QVERIFY(QFile::setPermissions(folder, owner | QFile::WriteOther | QFile::ExeOther));
        });
        row("a pipe", [](const QString &path) {
            QVERIFY(QFile::remove(path));
            QCOMPARE(::mkfifo(path.toLocal8Bit().constData(), S_IRUSR | S_IWUSR), 0);
        });
    }
    /// It is fetched once, and opened only as it was signed.
    void aKeptPackage()
    {
        const auto [spoil] = fetched<std::function<void(const QString &)>>();
        Stage stage;
        QCOMPARE(stage.check(u"1.3.0"_s), Phase::available);
        stage.updater.installUpdate();
        stage.updater.fetchUpdate();
        QCOMPARE(stage.settled(), Phase::ready);
        QCOMPARE(stage.check(u"1.3.0"_s), Phase::ready);
        QCOMPARE(stage.server.targets().count("/kestrune.deb"), 1);
        QVERIFY(stage.workspace.opened.isEmpty());
        stage.updater.installUpdate();
        QTRY_COMPARE(stage.workspace.opened, QList{QUrl::fromLocalFile(stage.path)});

        spoil(stage.path);
        stage.updater.installUpdate();
        QTRY_COMPARE(stage.updater.status().phase, Phase::failed);
        QCOMPARE(stage.workspace.opened.size(), 1);
        QCOMPARE(stage.check(u"1.3.0"_s), Phase::available);
    }

    void looksAgainWhenTheNetworkReturns()
    {
        Stage stage;
        const auto hears = [&](const Reply &reply) {
            stage.feed = reply;
            Q_EMIT stage.network.returned();
            return stage.settled();
        };
        const Reply cut{"HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n{", 0, {}, Reply::End::reset};
        QCOMPARE(stage.check(cut), Phase::failed);
        QCOMPARE(hears(cut), Phase::failed);
        QCOMPARE(stage.server.log().size(), 1); // Nobody allowed it.
        stage.updater.setAutomaticallyDownloadsUpdates(true);
        QCOMPARE(hears(cut), Phase::failed);
        QCOMPARE(stage.server.log().size(), 2);
        const Reply newest = stage.page(stage.entry(u"1.2.0"_s));
        QCOMPARE(hears(newest), Phase::current);
        QCOMPARE(hears(newest), Phase::current);
        QCOMPARE(stage.server.log().size(), 3);
        stage.clock.sleep(24h); // The days that the machine slept count.
        QCOMPARE(stage.settled(), Phase::current);
        QCOMPARE(stage.server.log().size(), 4);
    }

    void looksByItselfOnlyWhereAllowed()
    {
        Stage stage;
        stage.feed = stage.page(stage.entry(u"1.3.0"_s));
        stage.clock.advance(72h);
        stage.updater.setAutomaticallyDownloadsUpdates(true);
        stage.clock.advance(59s);
        QCOMPARE(stage.updater.status().phase, Phase::idle);
        stage.clock.advance(1s);
        QTRY_COMPARE(stage.updater.status().phase, Phase::ready);
        QCOMPARE(stage.attention.count(), 1);
        stage.phases.clear();
        stage.clock.advance(24h);
        QTRY_COMPARE(stage.phases, (QList<Phase>{Phase::checking, Phase::ready}));
        QCOMPARE(stage.attention.count(), 1); // once is enough
        QCOMPARE(stage.server.targets(), (QList<QByteArray>{"/feed", "/kestrune.deb", "/feed"}));
        stage.feed =
            stage.page(stage.signer.entry(u"1.4.0"_s, stage.server.url(u"/kestrune-1.4.0.deb"_s), kPackage));
        stage.package = WebStandIn::page(410, {});
        stage.clock.advance(24h);
        QCOMPARE(stage.settled(), Phase::failed);
        QCOMPARE(stage.attention.count(), 1); // what nobody asked for may fail unseen
        QVERIFY(stage.workspace.opened.isEmpty());
        stage.updater.setAutomaticallyDownloadsUpdates(false);
        stage.clock.advance(72h);
        QCOMPARE(stage.updater.status().phase, Phase::failed);
        QCOMPARE(stage.server.log().size(), 5);
    }
};

REGISTER_TEST(FeedUpdaterTest);
#include "FeedUpdaterTest.moc"
