#pragma once

#include "FakeFiles.h"
#include "FakeScreen.h"
#include "FakeServices.h"
#include "NotchKit/Platform/Appearance.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/LoginItem.h"
#include "NotchKit/Platform/NetworkReturn.h"
#include "NotchKit/Platform/Notifications.h"
#include "NotchKit/Platform/RunningApplications.h"
#include "NotchKit/Platform/SessionLock.h"
#include "NotchKit/Platform/SoundPlayer.h"
#include "NotchKit/Platform/SystemSleep.h"
#include "NotchKit/Platform/UserDefaults.h"
#include "NotchKit/Platform/Utc.h"
#include "NotchKit/Platform/Workspace.h"
#include "NotchKit/Updates/Updater.h"

#include <QMap>
#include <QSet>
#include <QUrl>

#include <list>
#include <memory>
#include <optional>

/// Stand-ins for the platform's ports, steered by the tests.
namespace Kestrune::Fakes {

/// Time stands still until `advance`, which runs what falls due in order.
struct FakeClock : Clock
{
    QDateTime now() const override { return m_start.addMSecs(m_elapsed.count()); }
    std::chrono::nanoseconds uptime() const override { return m_elapsed - m_slept; }
    std::chrono::nanoseconds uptimeWithSleep() const override { return m_elapsed; }

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

    /// What falls due while the machine sleeps is called once, when it wakes.
    void sleep(std::chrono::milliseconds time)
    {
        m_elapsed += time;
        m_slept += time;
        for (Entry &entry : m_entries)
            entry.due = std::max(entry.due, m_elapsed);
        advance(std::chrono::milliseconds(0));
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
        Q_DISABLE_COPY_MOVE(Timer)
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

    QDateTime m_start = QDateTime::fromSecsSinceEpoch(1'800'000'000, kUtc);
    std::chrono::milliseconds m_elapsed{0};
    std::chrono::milliseconds m_slept{0}; ///< Of what has elapsed.
    std::list<Entry> m_entries;
};

struct MemoryDefaults : UserDefaults
{
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
    void removeDamagedCopies() override { hasDamagedCopies = false; }

    Values values;
    bool hasDamagedCopies = true;
};

struct FakeSounds : SoundPlayer
{
    void play(const QString &name) override { played.append(name); }

    QStringList played;
};

struct FakeWorkspace : Workspace
{
    void open(const QUrl &url) override { opened.append(url); }
    void reveal(const QList<QUrl> &files) override { revealed.append(files); }
    QFuture<bool> hasPictureEditor() override { return answered(hasEditor); }
    void edit(const QUrl &picture) override { edited.append(picture); }
    QFuture<bool> moveToTrash(const QUrl &file) override
    {
        trashed.append(file);
        return answered(hasTrash);
    }

    QList<QUrl> opened;
    QList<QUrl> edited;
    QList<QUrl> trashed;
    bool hasEditor = true;
    bool hasTrash = true;
    QList<QList<QUrl>> revealed;
};

struct FakeApplications : RunningApplications
{
    bool isRunning(const QString &bundleIdentifier) const override
    {
        return running.contains(bundleIdentifier);
    }

    bool follow(const std::function<void()> &handler) override
    {
        changed = handler;
        return tells;
    }

    QSet<QString> running;
    bool tells = false;
    std::function<void()> changed;
};

struct FakeLoginItem : LoginItem
{
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

struct FakeSessionLock : SessionLock
{
    bool isLocked() const override { return locked; }
    void set(bool now)
    {
        locked = now;
        Q_EMIT changed();
    }

    bool locked = false;
};

struct FakeNotifications : Notifications
{
    void show(const QString &title, const QString &text) override { shown = {title, text}; }
    void withdraw() override { shown.clear(); }

    QStringList shown; ///< The one on screen: its title and its text.
};

struct FakeUpdater : Updater
{
    bool canCheckForUpdates() const override { return canCheck; }
    void checkForUpdates() override { ++checks; }
    bool automaticallyDownloadsUpdates() const override { return automatic; }
    void setAutomaticallyDownloadsUpdates(bool automatically) override
    {
        automatic = automatically;
        Q_EMIT changed();
    }
    bool isManaged() const override { return false; }
    UpdateStatus status() const override { return shown; }

    void setCanCheck(bool can)
    {
        canCheck = can;
        Q_EMIT changed();
    }

    bool canCheck = false;
    bool automatic = false;
    int checks = 0;
    UpdateStatus shown;
};

struct FakeAppearance : Appearance
{
    bool isDark() const override { return m_dark; }
    void setDark(bool dark)
    {
        m_dark = dark;
        Q_EMIT darkChanged();
    }

private:
    bool m_dark = true;
};

} // namespace Kestrune::Fakes
