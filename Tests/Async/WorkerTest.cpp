#include "Async/Worker.h"
#include "Async/LoopThread.h"
#include "Async/Mailbox.h"
#include "Async/PostBack.h"
#include "Async/Threads.h"
#include "Support/TestRegistry.h"

#include <QSemaphore>
#include <QThread>

#include <poll.h>

/// What can block, and what becomes of it when it hangs.
class WorkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// What hangs in a test comes back at its end.
    void cleanup()
    {
        m_gate->release(1000);
        QVERIFY(Threads::waitForAll(20s));
        m_gate = std::make_shared<QSemaphore>();
    }

    void oneThreadInOrder_data()
    {
        columns<Worker::Order, QList<int>>();
        QTest::newRow("oldest first") << Worker::Order::oldestFirst << QList<int>{0, 1, 2, 3};
        QTest::newRow("newest first") << Worker::Order::newestFirst << QList<int>{0, 3, 2, 1};
    }

    void oneThreadInOrder()
    {
        auto [order, expected] = fetched<Worker::Order, QList<int>>();
        Worker worker("test", order);
        const auto begun = std::make_shared<QList<int>>();
        QList<QFuture<QThread *>> futures;
        QSemaphore first;
        for (int i = 0; i < 4; ++i) {
            futures.append(worker.run(1min, [=, gate = m_gate, &first] {
                first.release();
                gate->acquire();
                begun->append(i);
                return QThread::currentThread();
            }));
            if (i == 0)
                first.acquire();
        }
        m_gate->release(4);
        for (auto &future : futures) {
            future.waitForFinished();
            QCOMPARE(future.result(), futures.first().result());
            QVERIFY(future.result() != thread());
        }
        QCOMPARE(*begun, expected);
    }

    /// The thread goes with the last work.
    void nothingStaysWhenIdle()
    {
        Worker worker("test");
        QCOMPARE(worker.run(1min, [] { return 7; }).result(), 7);
        QVERIFY(Threads::waitForAll(20s));
        QCOMPARE(worker.run(1min, [] { return 8; }).result(), 8);
    }

    void givenUpBeforeItsTurn()
    {
        Worker worker("test");
        const auto first = worker.run(1min, [gate = m_gate] { return gate->acquire(), 1; });
        const auto ran = std::make_shared<bool>(false);
        QFuture<int> second = worker.run(1min, [ran] { return *ran = true, 2; });
        second.cancel();
        m_gate->release();
        QCOMPARE(worker.run(1min, [] { return 3; }).result(), 3);
        QVERIFY(!*ran);
    }

    /// What hangs gives the default value; what waits behind it goes on, until too much hangs.
    void hangingWorkIsAbandoned()
    {
        Worker worker("test");
        QList<QFuture<int>> hung;
        for (int i = 0; i < Worker::kMostHung; ++i) {
            hung.append(worker.run(20ms, [gate = m_gate] { return gate->acquire(), 1; }));
            const QFuture<int> behind = worker.run(1min, [] { return 2; });
            QTRY_VERIFY(hung.last().isFinished());
            QCOMPARE(hung.last().result(), 0);
            QTRY_VERIFY(behind.isFinished());
            QCOMPARE(behind.result(), i + 1 < Worker::kMostHung ? 2 : 0);
        }
        const QFuture<int> refused = worker.run(1min, [] { return 2; });
        QVERIFY(refused.isFinished());
        QCOMPARE(refused.result(), 0);

        Worker other("other");
        QCOMPARE(other.run(1min, [] { return 3; }).result(), 3);

        m_gate->release();
        QTRY_COMPARE(worker.run(1min, [] { return 2; }).result(), 2);
        QCOMPARE(hung.first().result(), 0);
    }

    void tooMuchIsRefused()
    {
        Worker worker("test");
        worker.run(1min, [gate = m_gate] { return gate->acquire(), 1; });
        std::size_t waiting = 0;
        while (!worker.run(1min, [] { return 1; }).isFinished())
            QVERIFY(++waiting <= Worker::kMostWaiting);
        QVERIFY(waiting >= Worker::kMostWaiting - 1);
    }

    void theEndAnswersEverythingAndWaitsForNothing()
    {
        auto worker = std::make_unique<Worker>("test");
        QSemaphore begun;
        const auto hung = worker->run(1min, [gate = m_gate, &begun] {
            begun.release();
            return gate->acquire(), 1;
        });
        begun.acquire();
        const auto waiting = worker->run(1min, [] { return 1; });
        worker.reset();
        QVERIFY(hung.isFinished() && waiting.isFinished());
        QCOMPARE(hung.result() + waiting.result(), 0);
    }

    void exceptionsGiveTheDefault()
    {
        Worker worker("test");
        QTest::ignoreMessage(QtWarningMsg, "test: bad");
        QCOMPARE(worker.run(1min, []() -> int { throw std::runtime_error("bad"); }).result(), 0);
    }

    void loopsCarryOutAndTakeTheirObjectsAlong()
    {
        const auto gone = std::make_shared<QSemaphore>();
        {
            LoopThread loop("test");
            const auto answer =
                loop.ask<bool>(1min, [=, main = thread()](QObject &parent, const Pledge<bool> &pledge) {
                    auto *object = new QObject(&parent);
                    connect(object, &QObject::destroyed, object, [gone] { gone->release(); });
                    QMetaObject::invokeMethod(
                        object, [=] { pledge.give(object->thread() != main); }, Qt::QueuedConnection);
                });
            QVERIFY(answer.result());
            QCOMPARE(gone->available(), 0);
        }
        QVERIFY(gone->tryAcquire(1, 20000));
    }

    void hangingLoopsAreAbandoned()
    {
        LoopThread loop("test");
        const auto hang = [gate = m_gate](QObject &, const Pledge<int> &) { gate->acquire(); };
        const auto answer = [](QObject &, const Pledge<int> &pledge) { pledge.give(2); };
        for (int i = 0; i < LoopThread::kMostHung; ++i) {
            QCOMPARE(loop.ask<int>(1min, answer).result(), 2);
            const QFuture<int> hung = loop.ask<int>(20ms, hang);
            const QFuture<int> behind = loop.ask<int>(1min, answer);
            QTRY_VERIFY(hung.isFinished() && behind.isFinished());
            QCOMPARE(hung.result() + behind.result(), 0);
        }
        const QFuture<int> refused = loop.ask<int>(1min, answer);
        QVERIFY(refused.isFinished());
        m_gate->release();
        QTRY_COMPARE(loop.ask<int>(1min, answer).result(), 2);
    }

    void theEndOfALoopAnswersEverything()
    {
        for (int round = 0; round < 300; ++round) {
            auto loop = std::make_unique<LoopThread>("test");
            const auto keep = [gate = m_gate](QObject &parent, const Pledge<int> &pledge) {
                connect(&parent, &QObject::destroyed, &parent, [pledge] {});
                gate->release();
            };
            QList<QFuture<int>> asked;
            for (int i = 0; i < 2; ++i)
                asked.append(loop->ask<int>(1min, keep));
            m_gate->acquire(2);
            loop.reset();
            QVERIFY(std::ranges::all_of(asked, &QFuture<int>::isFinished));
        }
    }

    void postsBackUntilTheEnd()
    {
        auto back = std::make_unique<PostBack>();
        QList<int> posted;
        const auto post = [&, handle = back->handle()](int number) {
            Threads::start("test", [&posted, handle, number] {
                handle.post([&posted, number] { posted.append(number); });
            });
            return Threads::waitForAll(20s);
        };
        QVERIFY(post(1));
        QTRY_COMPARE(posted, QList<int>{1});
        QVERIFY(post(2));
        back.reset();
        QVERIFY(post(3));
        QTest::qWait(0);
        QCOMPARE(posted, QList<int>{1});
    }

    void mailboxesWakeAPoll()
    {
        Mailbox<int> box;
        const auto rings = [&] {
            pollfd source{box.descriptor(), POLLIN, 0};
            return ::poll(&source, 1, 0) == 1;
        };
        QVERIFY(!rings() && !box.take());
        box.post(1);
        box.post(2);
        QVERIFY(rings());
        QCOMPARE(box.take(), std::optional(1));
        QVERIFY(rings());
        QCOMPARE(box.take(), std::optional(2));
        QVERIFY(!rings());
        box.post(3);
        box.close();
        box.post(4);
        QVERIFY(rings() && box.isClosed() && !box.take() && rings());
    }

private:
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
};

REGISTER_TEST(WorkerTest);
#include "WorkerTest.moc"
