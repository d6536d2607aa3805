#include "Async/Scope.h"
#include "Async/Pledge.h"
#include "Support/Questions.h"
#include "Support/TestRegistry.h"

#include <stdexcept>

/// A model of the simplest kind: it asks, and notes what happens.
struct Owner
{
    explicit Owner(Fakes::Questions<int> &asked, QStringList &told)
        : questions(asked)
        , notes(told)
    {}

    QCoro::Task<> ask(QString name, int times)
    {
        const Unwound unwound(notes, name);
        for (; times > 0; --times) {
            const QFuture<int> asked = questions.ask();
            const int answer = co_await until(asked);
            note(name, answer);
            if (const auto step = std::exchange(inHandler, {}))
                step(); // After which the owner may be gone.
        }
    }

    QCoro::Task<int> sum()
    {
        const Unwound unwound(notes, u"sum"_s);
        const QFuture<int> first = questions.ask();
        const int one = co_await until(first);
        const QFuture<int> second = questions.ask();
        const int other = co_await until(second);
        if (other < 0)
            throw std::runtime_error("negative");
        co_return one + other;
    }

    QCoro::Task<> nest()
    {
        const Unwound unwound(notes, u"nest"_s);
        try {
            const int total = co_await sum();
            note(u"nest"_s, total);
        } catch (const std::runtime_error &fault) {
            notes.append(QString::fromLatin1(fault.what()));
        }
    }

    QCoro::Task<> wait(QFuture<int> future)
    {
        const int answer = co_await until(future);
        note(u"wait"_s, answer);
    }

    void note(const QString &name, int answer) { notes.append(name + QString::number(answer)); }

    /// Notes when the locals of a flow go.
    struct Unwound
    {
        Unwound(QStringList &list, const QString &flow)
            : notes(list)
            , name(flow)
        {}
        ~Unwound() { notes.append(u'~' + name); }
        Q_DISABLE_COPY_MOVE(Unwound)
        QStringList &notes;
        QString name;
    };

    Fakes::Questions<int> &questions;
    QStringList &notes;
    std::function<void()> inHandler;
    Scope scope;
};

class ScopeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_questions = {};
        m_notes.clear();
        m_owner = std::make_unique<Owner>(m_questions, m_notes);
    }
    void cleanup() { m_owner.reset(); }

    void answersArriveInTheFlow()
    {
        start(&Owner::ask, u"a"_s, 1);
        start(&Owner::ask, u"b"_s, 1);
        QVERIFY(m_owner->scope.isWaiting());
        m_questions.answer(1, 2);
        m_questions.answer(0, 1);
        QTRY_COMPARE(m_notes.size(), 4);
        QVERIFY(m_notes.contains(u"a1"_s) && m_notes.contains(u"b2"_s));
        QVERIFY(!m_owner->scope.isWaiting());
    }

    void theEndUnwindsWhatWaits()
    {
        start(&Owner::ask, u"a"_s, 1);
        start(&Owner::nest);
        m_owner.reset();
        QCOMPARE(m_notes, QStringList({u"~a"_s, u"~sum"_s, u"~nest"_s}));
        QVERIFY(m_questions.isGivenUp(0) && m_questions.isGivenUp(1));
        m_questions.answer(0, 1);
        m_questions.answer(1, 1);
        QTest::qWait(0);
        QCOMPARE(m_notes.size(), 3);
    }

    void anAnswerOnItsWayIsTooLate()
    {
        start(&Owner::ask, u"a"_s, 1);
        m_questions.answer(0, 1);
        m_owner.reset();
        QTest::qWait(0);
        QCOMPARE(m_notes, QStringList(u"~a"_s));
    }

    void theNewestWins()
    {
        m_owner->scope.restart(&Owner::ask, m_owner.get(), u"a"_s, 1);
        m_owner->scope.restart(&Owner::ask, m_owner.get(), u"b"_s, 1);
        QCOMPARE(m_notes, QStringList(u"~a"_s));
        QVERIFY(m_questions.isGivenUp(0) && !m_questions.isGivenUp(1));
        m_questions.answer(1, 2);
        QTRY_COMPARE(m_notes, QStringList({u"~a"_s, u"b2"_s, u"~b"_s}));
    }

    /// The older flow, which runs while it is given up, does not go on as one of the newer ones.
    void restartedByItsOwnStep()
    {
        m_owner->inHandler = [this] { m_owner->scope.restart(&Owner::ask, m_owner.get(), u"b"_s, 1); };
        start(&Owner::ask, u"a"_s, 2);
        m_questions.answer(0, 1);
        QTRY_COMPARE(m_notes, QStringList({u"a1"_s, u"~a"_s}));
        QVERIFY(!m_questions.isGivenUp(1) && m_questions.isGivenUp(2));
        m_questions.answer(1, 2);
        QTRY_COMPARE(m_notes.mid(2), QStringList({u"b2"_s, u"~b"_s}));
    }

    void ownerDestroyedByItsOwnStep()
    {
        m_owner->inHandler = [this] { m_owner.reset(); };
        start(&Owner::ask, u"a"_s, 1);
        start(&Owner::ask, u"b"_s, 1);
        m_questions.answer(0, 1);
        QTRY_COMPARE(m_notes, QStringList({u"a1"_s, u"~b"_s, u"~a"_s}));
        QVERIFY(m_questions.isGivenUp(1));
    }

    void nestedFlowsAndTheirFaults_data()
    {
        columns<int, QString>();
        QTest::newRow("a result") << 4 << u"nest5"_s;
        QTest::newRow("an exception") << -1 << u"negative"_s;
    }

    void nestedFlowsAndTheirFaults()
    {
        auto [second, note] = fetched<int, QString>();
        start(&Owner::nest);
        m_questions.answer(0, 1);
        QTRY_COMPARE(m_questions.count(), std::size_t(2));
        m_questions.answer(1, second);
        QTRY_COMPARE(m_notes, QStringList({u"~sum"_s, note, u"~nest"_s}));
    }

    void finishedFuturesAreWaitedForToo()
    {
        start(&Owner::wait, answered(7));
        QVERIFY(m_notes.isEmpty());
        QTRY_COMPARE(m_notes, QStringList(u"wait7"_s));
    }

    void unansweredGivesTheDefault()
    {
        auto promise = std::make_unique<QPromise<int>>();
        promise->start();
        start(&Owner::wait, promise->future());
        promise.reset();
        QTRY_COMPARE(m_notes, QStringList(u"wait0"_s));
    }

private:
    template <typename Flow, typename... Arguments>
    void start(Flow flow, Arguments... arguments)
    {
        m_owner->scope.start(flow, m_owner.get(), arguments...);
    }

    Fakes::Questions<int> m_questions;
    QStringList m_notes;
    std::unique_ptr<Owner> m_owner;
};

REGISTER_TEST(ScopeTest);
#include "ScopeTest.moc"
