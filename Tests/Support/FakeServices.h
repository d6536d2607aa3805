#pragma once

#include "Async/Pledge.h"
#include "NotchKit/Platform/CalendarStore.h"
#include "NotchKit/Platform/CameraSession.h"
#include "NotchKit/Platform/HostStatistics.h"
#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/LocationService.h"
#include "NotchKit/Platform/ScriptExecutor.h"
#include "Support/Lists.h"
#include "Support/Questions.h"

#include <QMap>

#include <map>
#include <optional>

/// Stand-ins for the platform's ports, steered by the tests.
namespace Kestrune::Fakes {

/// Answers when the test does: a promise for each request, in their order. Addresses among the `replies` are
/// answered at once.
struct FakeHttp : HttpClient
{
    QFuture<HttpReply> get(const HttpRequest &request) override
    {
        asked.append(request);
        const QFuture<HttpReply> future = questions.ask();
        const auto reply = replies.constFind(request.url.toString());
        if (reply != replies.cend())
            questions.answerLast(*reply);
        return future;
    }
    QStringList addresses() const
    {
        return each(asked, [](const auto &request) { return QString::fromLatin1(request.url.toEncoded()); });
    }

    QMap<QString, HttpReply> replies;
    QList<HttpRequest> asked;
    Questions<HttpReply> questions;
};

struct FakeLocation : LocationService
{
    QFuture<std::optional<Coordinate>> locate() override { return questions.ask(); }

    Questions<std::optional<Coordinate>> questions;
};

struct FakeHost : HostStatistics
{
    std::optional<ProcessorTicks> processorTicks() override { return ++asked, ticks; }
    std::optional<MemoryPages> memoryPages() override { return pages; }
    double physicalMemory() override { return installed; }
    QFuture<std::optional<QList<PowerSource>>> powerSources() override { return answered(supplies); }
    QFuture<VolumeCapacity> startupVolume() override { return answered(volume); }

    int asked = 0;
    std::optional<ProcessorTicks> ticks;
    std::optional<MemoryPages> pages;
    double installed = 16.0 * 1024 * 1024 * 1024;
    std::optional<QList<PowerSource>> supplies;
    VolumeCapacity volume;
};

/// Answers each script at once with what the test put there for it, or, while `held`, when `release` is
/// called.
struct FakeScripts : ScriptExecutor
{
    QFuture<ScriptOutcome> execute(const QString &source) override
    {
        m_executed.append(source);
        const QFuture<ScriptOutcome> future = m_questions.ask();
        if (!held)
            release();
        return future;
    }
    void release()
    {
        held = false;
        for (; m_answered < m_questions.count(); ++m_answered)
            m_questions.answer(m_answered,
                               m_answers.value(m_executed.at(static_cast<qsizetype>(m_answered))));
    }

    void answer(const QString &source, const ScriptOutcome &outcome) { m_answers.insert(source, outcome); }
    /// What was executed since the last call.
    QStringList take() { return m_executed.mid(std::exchange(m_taken, m_executed.size())); }

    bool held = false;

private:
    QMap<QString, ScriptOutcome> m_answers;
    QStringList m_executed;
    qsizetype m_taken = 0; ///< Of the executed ones.
    Questions<ScriptOutcome> m_questions;
    std::size_t m_answered = 0; ///< Of the questions.
};

/// Allows and has a camera unless told otherwise. Questions are answered when the test does.
struct FakeCamera : CameraSession
{
    void installHandlers(Handlers installed) override { handlers = std::move(installed); }
    CameraAuthorization authorization() override { return status; }
    QFuture<bool> requestAccess(bool mayAskUser) override
    {
        return ask(mayAskUser ? QStringLiteral("access") : QStringLiteral("look"));
    }
    QFuture<QList<CameraDevice>> cameras() override { return answered(found); }
    void choose(const QString &camera) override { chosen = camera; }
    QFuture<bool> configure() override { return ask(QStringLiteral("configure")); }
    void startRunning() override { called.append(QStringLiteral("start")); }
    void stopRunning() override { called.append(QStringLiteral("stop")); }
    void requestPicture(const PictureShape &shape) override
    {
        if (called.lastIndexOf(QStringLiteral("start")) > called.lastIndexOf(QStringLiteral("stop")))
            shapes.append(shape);
    }

    Handlers handlers;
    CameraAuthorization status = CameraAuthorization::authorized;
    QStringList called;
    QList<PictureShape> shapes;
    QList<CameraDevice> found;
    QString chosen;
    Questions<bool> questions;

private:
    QFuture<bool> ask(const QString &question)
    {
        called.append(question);
        return questions.ask();
    }
};

/// Answers when the test does: a promise for each question, in their order.
struct FakeCalendars : CalendarStore
{
    QFuture<CalendarAccess> access(CalendarEntity entity) override { return accesses[entity].ask(); }
    QFuture<bool> requestAccess(CalendarEntity entity) override { return requests[entity].ask(); }
    QFuture<std::optional<Events>> events(const QDateTime &from, const QDateTime &to) override
    {
        ranges.append({from, to});
        return eventQuestions.ask();
    }
    QFuture<std::optional<Tasks>> incompleteReminders() override { return reminderQuestions.ask(); }
    QFuture<QStringList> unread() override { return unreadQuestions.ask(); }
    QFuture<bool> complete(const QString &id) override
    {
        completed.append(id);
        return completions.ask();
    }

    std::map<CalendarEntity, Questions<CalendarAccess>> accesses;
    std::map<CalendarEntity, Questions<bool>> requests;
    Questions<std::optional<Events>> eventQuestions;
    Questions<std::optional<Tasks>> reminderQuestions;
    Questions<QStringList> unreadQuestions;
    Questions<bool> completions;
    QList<std::pair<QDateTime, QDateTime>> ranges;
    QStringList completed;
};

} // namespace Kestrune::Fakes
