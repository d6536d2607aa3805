#pragma once

#include "NotchKit/Platform/CalendarStore.h"
#include "NotchKit/Platform/CameraSession.h"
#include "NotchKit/Platform/HostStatistics.h"
#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/LocationService.h"
#include "NotchKit/Platform/ScriptExecutor.h"

#include <QMap>
#include <QMutex>
#include <QPromise>

#include <map>
#include <optional>
#include <vector>

/// Stand-ins for the platform's ports, steered by the tests.
namespace Kestrune::Fakes {

/// Answers when the test does: a promise for each request, in their order. Addresses among the `replies` are
/// answered at once.
class FakeHttp : public HttpClient
{
public:
    QFuture<HttpReply> get(const HttpRequest &request) override
    {
        asked.append(request);
        answers.emplace_back().start();
        QFuture<HttpReply> future = answers.back().future();
        const auto reply = replies.constFind(request.url.toString());
        if (reply != replies.cend())
            answer(answers.size() - 1, *reply);
        return future;
    }
    void answer(std::size_t index, const HttpReply &reply)
    {
        answers.at(index).addResult(reply);
        answers.at(index).finish();
    }
    QStringList addresses() const
    {
        QStringList list;
        for (const HttpRequest &request : asked)
            list.append(QString::fromLatin1(request.url.toEncoded()));
        return list;
    }

    QMap<QString, HttpReply> replies;
    QList<HttpRequest> asked;
    std::vector<QPromise<HttpReply>> answers;
};

class FakeLocation : public LocationService
{
public:
    QFuture<std::optional<Coordinate>> locate() override
    {
        answers.emplace_back().start();
        return answers.back().future();
    }
    void answer(std::size_t index, const std::optional<Coordinate> &fix)
    {
        answers.at(index).addResult(fix);
        answers.at(index).finish();
    }

    std::vector<QPromise<std::optional<Coordinate>>> answers;
};

class FakeHost : public HostStatistics
{
public:
    std::optional<ProcessorTicks> processorTicks() override { return ++asked, ticks; }
    std::optional<MemoryPages> memoryPages() override { return pages; }
    double physicalMemory() override { return installed; }
    std::optional<QList<PowerSource>> powerSources() override { return supplies; }
    VolumeCapacity startupVolume() override { return volume; }

    int asked = 0;
    std::optional<ProcessorTicks> ticks;
    std::optional<MemoryPages> pages;
    double installed = 16.0 * 1024 * 1024 * 1024;
    std::optional<QList<PowerSource>> supplies;
    VolumeCapacity volume;
};

/// Answers each script with what the test put there for it, on the thread that asks.
class FakeScripts : public ScriptExecutor
{
public:
    ScriptOutcome execute(const QString &source) override
    {
        const QMutexLocker lock(&m_mutex);
        m_executed.append(source);
        return m_answers.value(source);
    }

    void answer(const QString &source, const ScriptOutcome &outcome)
    {
        const QMutexLocker lock(&m_mutex);
        m_answers.insert(source, outcome);
    }
    /// What was executed since the last call.
    QStringList take()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_executed, {});
    }

private:
    QMutex m_mutex;
    QMap<QString, ScriptOutcome> m_answers;
    QStringList m_executed;
};

/// Allows and has a camera unless told otherwise. Questions are answered when the test does.
class FakeCamera : public CameraSession
{
public:
    void installHandlers(Handlers installed) override { handlers = std::move(installed); }
    CameraAuthorization authorization() override { return status; }
    QFuture<bool> requestAccess() override { return ask(QStringLiteral("access")); }
    QFuture<bool> configure() override { return ask(QStringLiteral("configure")); }
    void startRunning() override { called.append(QStringLiteral("start")); }
    void stopRunning() override { called.append(QStringLiteral("stop")); }
    void requestPicture(const PictureShape &shape) override
    {
        if (called.lastIndexOf(QStringLiteral("start")) > called.lastIndexOf(QStringLiteral("stop")))
            shapes.append(shape);
    }

    /// Answers the last question.
    void answer(bool yes)
    {
        questions.back().addResult(yes);
        questions.back().finish();
    }

    Handlers handlers;
    CameraAuthorization status = CameraAuthorization::authorized;
    QStringList called;
    QList<PictureShape> shapes;
    std::vector<QPromise<bool>> questions;

private:
    QFuture<bool> ask(const QString &question)
    {
        called.append(question);
        questions.emplace_back().start();
        return questions.back().future();
    }
};

/// Answers when the test does: a promise for each question, in their order.
class FakeCalendars : public CalendarStore
{
public:
    template <typename Result>
    struct Questions
    {
        QFuture<Result> ask()
        {
            promises.emplace_back().start();
            return promises.back().future();
        }
        void answer(std::size_t index, const Result &result)
        {
            promises.at(index).addResult(result);
            promises.at(index).finish();
        }
        std::size_t count() const { return promises.size(); }

        std::vector<QPromise<Result>> promises;
    };

    QFuture<CalendarAccess> access(CalendarEntity entity) override { return accesses[entity].ask(); }
    QFuture<bool> requestAccess(CalendarEntity entity) override { return requests[entity].ask(); }
    QFuture<std::optional<Events>> events(const QDateTime &from, const QDateTime &to) override
    {
        ranges.append({from, to});
        return eventQuestions.ask();
    }
    QFuture<std::optional<Tasks>> incompleteReminders() override { return reminderQuestions.ask(); }
    QFuture<bool> complete(const QString &id) override
    {
        completed.append(id);
        return completions.ask();
    }

    std::map<CalendarEntity, Questions<CalendarAccess>> accesses;
    std::map<CalendarEntity, Questions<bool>> requests;
    Questions<std::optional<Events>> eventQuestions;
    Questions<std::optional<Tasks>> reminderQuestions;
    Questions<bool> completions;
    QList<std::pair<QDateTime, QDateTime>> ranges;
    QStringList completed;
};

} // namespace Kestrune::Fakes
