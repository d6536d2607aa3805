#pragma once

#include "NotchKit/Platform/CalendarStore.h"
#include "NotchKit/Platform/CameraSession.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/Displays.h"
#include "NotchKit/Platform/DragPasteboard.h"
#include "NotchKit/Platform/FileSharing.h"
#include "NotchKit/Platform/HostStatistics.h"
#include "NotchKit/Platform/HotKeys.h"
#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/LocationService.h"
#include "NotchKit/Platform/LoginItem.h"
#include "NotchKit/Platform/NotchPanels.h"
#include "NotchKit/Platform/Pasteboard.h"
#include "NotchKit/Platform/Pointer.h"
#include "NotchKit/Platform/RunningApplications.h"
#include "NotchKit/Platform/ScreenCaptureQuery.h"
#include "NotchKit/Platform/ScriptExecutor.h"
#include "NotchKit/Platform/SoundPlayer.h"
#include "NotchKit/Platform/Thumbnails.h"
#include "NotchKit/Platform/UserDefaults.h"
#include "NotchKit/Platform/Workspace.h"

#include <QMap>
#include <QMutex>
#include <QPromise>
#include <QSet>
#include <QUrl>

#include <algorithm>
#include <list>
#include <map>
#include <vector>

/// Stand-ins for the platform's ports, steered by the tests.
namespace Kestrune::Fakes {

/// Time stands still until `advance`, which runs what falls due in order.
class FakeClock : public Clock
{
public:
    QDateTime now() const override { return m_start.addMSecs(m_elapsed.count()); }
    std::chrono::nanoseconds uptime() const override { return m_elapsed; }

    std::unique_ptr<RunningTimer> every(std::chrono::milliseconds interval, Handler handler) override
    {
        return add(interval, interval, std::move(handler));
    }
    std::unique_ptr<RunningTimer> after(std::chrono::milliseconds delay, Handler handler) override
    {
        return add(delay, std::chrono::milliseconds(0), std::move(handler));
    }

    void advance(std::chrono::milliseconds time)
    {
        const auto end = m_elapsed + time;
        while (Entry *next = nextDue(end)) {
            m_elapsed = next->due;
            const Handler handler = next->handler;
            if (next->interval.count() > 0)
                next->due += next->interval;
            else
                next->done = true;
            handler();
        }
        m_elapsed = end;
    }

    std::size_t running() const
    {
        return static_cast<std::size_t>(std::ranges::count(m_entries, false, &Entry::done));
    }

private:
    struct Entry
    {
        std::chrono::milliseconds due;
        std::chrono::milliseconds interval;
        Handler handler;
        bool done = false;
    };

    struct Timer : RunningTimer
    {
        Timer(FakeClock &owner, Entry &timed)
            : clock(owner)
            , entry(timed)
        {}
        ~Timer() override
        {
            clock.m_entries.remove_if([this](const Entry &other) { return &other == &entry; });
        }
        Timer(const Timer &) = delete;
        Timer &operator=(const Timer &) = delete;
        FakeClock &clock;
        Entry &entry;
    };

    std::unique_ptr<RunningTimer> add(std::chrono::milliseconds delay, std::chrono::milliseconds interval,
                                      Handler handler)
    {
        m_entries.push_back({m_elapsed + delay, interval, std::move(handler)});
        return std::make_unique<Timer>(*this, m_entries.back());
    }

    Entry *nextDue(std::chrono::milliseconds end)
    {
        Entry *next = nullptr;
        for (Entry &entry : m_entries) {
            if (!entry.done && entry.due <= end && (!next || entry.due < next->due))
                next = &entry;
        }
        return next;
    }

    QDateTime m_start = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
    std::chrono::milliseconds m_elapsed{0};
    std::list<Entry> m_entries;
};

class MemoryDefaults : public UserDefaults
{
public:
    using Values = QMap<QString, DefaultsValue>;

    explicit MemoryDefaults(Values stored = {})
        : values(std::move(stored))
    {}

    std::optional<DefaultsValue> object(const QString &key) const override
    {
        const auto found = values.constFind(key);
        return found == values.cend() ? std::nullopt : std::optional(*found);
    }
    void setObject(const QString &key, const DefaultsValue &value) override { values.insert(key, value); }
    void removeObject(const QString &key) override { values.remove(key); }

    Values values;
};

class FakeDisplays : public Displays
{
public:
    QList<Display> all() const override { return displays; }
    std::optional<Display> main() const override
    {
        return displays.isEmpty() ? std::nullopt : std::optional(displays.value(mainIndex));
    }

    QList<Display> displays;
    int mainIndex = 0;
};

/// Answers at once, or, while `held`, when `release` is called. Counts what it was asked for.
class FakePasteboard : public Pasteboard
{
public:
    qint64 changeCount() const override { return count; }
    QFuture<QStringList> types() override { return answer(offered, QStringLiteral("types")); }
    QFuture<QList<QUrl>> fileUrls() override { return answer(urls, QStringLiteral("urls")); }
    QFuture<std::optional<EncodedPicture>> picture() override
    {
        return answer(encoded, QStringLiteral("picture"));
    }
    QFuture<std::optional<QString>> string() override { return answer(text, QStringLiteral("string")); }
    qint64 write(const PasteboardContent &content) override
    {
        written = content;
        return ++count;
    }

    /// Another program copies.
    void offer(const QString &copied) { replace({QString::fromLatin1(kString)}).text = copied; }
    void offer(const QList<QUrl> &copied) { replace({QString::fromLatin1(kFileUrls)}).urls = copied; }
    void offer(const EncodedPicture &copied) { replace({copied.type}).encoded = copied; }
    FakePasteboard &replace(const QStringList &types)
    {
        ++count;
        offered = types;
        urls.clear();
        encoded.reset();
        text.reset();
        return *this;
    }

    void release()
    {
        held = false;
        for (const auto &finish : std::exchange(waiting, {}))
            finish();
    }

    qint64 count = 1;
    QStringList offered;
    QList<QUrl> urls;
    std::optional<EncodedPicture> encoded;
    std::optional<QString> text;
    PasteboardContent written;
    QStringList asked;
    bool held = false;
    std::vector<std::function<void()>> waiting;

private:
    template <typename Value>
    QFuture<Value> answer(const Value &value, const QString &question)
    {
        asked.append(question);
        auto promise = std::make_shared<QPromise<Value>>();
        promise->start();
        waiting.push_back([promise, value] {
            promise->addResult(value);
            promise->finish();
        });
        const auto future = promise->future();
        if (!held)
            release();
        return future;
    }
};

class FakePointer : public Pointer
{
public:
    QPointF location() override { return now.location; }
    PointerSample sample() override { return now; }

    PointerSample now;
};

class FakePanels : public NotchPanels
{
public:
    struct Panel : NotchPanel
    {
        explicit Panel(FakePanels &owner)
            : panels(owner)
        {
            panels.alive.push_back(this);
        }
        ~Panel() override { std::erase(panels.alive, this); }
        Panel(const Panel &) = delete;
        Panel &operator=(const Panel &) = delete;

        void setFrame(const QRectF &place) override { frame = place; }
        void orderFront() override { shown = true; }
        void orderOut() override { shown = false; }
        void setHitArea(const QRectF &area) override { hitArea = area; }
        void makeKey() override { key = true; }
        void resignKey() override { key = false; }

        FakePanels &panels;
        QRectF frame;
        QRectF hitArea;
        bool shown = false;
        bool key = false;
    };

    std::unique_ptr<NotchPanel> create(const QRectF &frame, NotchScreenModel &, NotchServices &) override
    {
        auto panel = std::make_unique<Panel>(*this);
        panel->frame = frame;
        return panel;
    }

    std::vector<Panel *> alive;
};

class FakeHotKeys : public HotKeys
{
public:
    void installHandler(Handler installed) override { handler = std::move(installed); }
    bool registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity) override
    {
        if (taken)
            return false;
        registered.push_back(identity);
        codes = {keyCode, modifiers};
        return true;
    }
    void unregisterHotKey(HotKeyIdentity identity) override { std::erase(registered, identity); }

    Handler handler;
    std::vector<HotKeyIdentity> registered;
    std::pair<quint32, quint32> codes;
    bool taken = false;
};

class FakeDrags : public DragPasteboard
{
public:
    bool holdsFileUrls() const override { return !files.isEmpty(); }
    QFuture<QList<QUrl>> fileUrls() override
    {
        QPromise<QList<QUrl>> promise;
        promise.start();
        promise.addResult(files);
        promise.finish();
        return promise.future();
    }

    QList<QUrl> files;
};

class FakeSounds : public SoundPlayer
{
public:
    void play(const QString &name) override { played.append(name); }

    QStringList played;
};

class FakeWorkspace : public Workspace
{
public:
    void open(const QUrl &url) override { opened.append(url); }
    void reveal(const QList<QUrl> &files) override { revealed.append(files); }

    QList<QUrl> opened;
    QList<QList<QUrl>> revealed;
};

/// Reaches devices "id0", "Device 0" and so on. Answers at once, or, while `held`, when `release` is called.
class FakeSharing : public FileSharing
{
public:
    explicit FakeSharing(int count = 0)
    {
        for (int i = 0; i < count; ++i)
            reachable.append({QStringLiteral("id%1").arg(i), QStringLiteral("Device %1").arg(i)});
    }

    QFuture<QList<SharingDevice>> devices() override
    {
        waiting.emplace_back().start();
        const auto future = waiting.back().future();
        if (!held)
            release();
        return future;
    }
    void send(const QString &device, const QList<QUrl> &files) override { sent.append({device, files}); }

    void release()
    {
        held = false;
        for (auto &promise : std::exchange(waiting, {})) {
            promise.addResult(reachable);
            promise.finish();
        }
    }

    QList<SharingDevice> reachable;
    QList<std::pair<QString, QList<QUrl>>> sent;
    bool held = false;
    std::vector<QPromise<QList<SharingDevice>>> waiting;
};

/// Finds what the test puts in `found`, when the test says so.
class FakeCaptureQuery : public ScreenCaptureQuery
{
public:
    void installHandler(Handler installed) override { handler = std::move(installed); }
    void start() override { running = true; }
    void stop() override { running = false; }
    QList<ScreenCapture> results() const override { return found; }
    bool isAccessMissing() const override { return accessMissing; }
    void requestAccess() override { ++requests; }

    Handler handler;
    QList<ScreenCapture> found;
    bool running = false;
    bool accessMissing = false;
    int requests = 0;
};

/// Answers when the test does: a promise for each request, in their order.
class FakeThumbnails : public Thumbnails
{
public:
    QFuture<QImage> thumbnail(const QString &path) override
    {
        asked.append(path);
        answers.emplace_back().start();
        return answers.back().future();
    }
    void answer(std::size_t index, const QImage &image)
    {
        answers.at(index).addResult(image);
        answers.at(index).finish();
    }

    QStringList asked;
    std::vector<QPromise<QImage>> answers;
};

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

class FakeApplications : public RunningApplications
{
public:
    bool isRunning(const QString &bundleIdentifier) const override
    {
        return running.contains(bundleIdentifier);
    }

    QSet<QString> running;
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

class FakeLoginItem : public LoginItem
{
public:
    bool isEnabled() const override { return enabled; }
    std::optional<QString> setEnabled(bool wanted) override
    {
        if (!failure)
            enabled = wanted;
        return failure;
    }

    bool enabled = false;
    std::optional<QString> failure;
};

} // namespace Kestrune::Fakes
