#pragma once

#include "Async/PostBack.h"
#include "CaptureLoop.h"
#include "NotchKit/Platform/ScreenCaptureQuery.h"

#include <atomic>
#include <memory>

namespace Kestrune {

class UserDefaults;

/// Finds the screenshots in the folders to which the tools of free desktops save them. A thread of its own
/// looks and then sleeps until the kernel tells of a change.
class FolderCaptureQuery : public ScreenCaptureQuery
{
public:
    /// The domain and the key under which the user can name another folder for screenshots.
    static QString domain() { return QStringLiteral("com.apple.screencapture"); }
    static QString locationKey() { return QStringLiteral("location"); }

    /// `preferences` is that domain; it outlives the query.
    explicit FolderCaptureQuery(const UserDefaults &preferences);
    ~FolderCaptureQuery() override;

    void installHandler(Handler handler) override { m_handler = std::move(handler); }
    void start() override;
    void stop() override;
    QList<ScreenCapture> results() const override { return m_findings.captures; }
    bool isAccessMissing() const override { return m_findings.accessMissing; }
    void requestAccess() override;

private:
    QString location() const;
    void launch();
    void take(const CaptureOrders *run, const CaptureLoop::Findings &findings);

    const UserDefaults &m_preferences;
    Handler m_handler;
    CaptureLoop::Findings m_findings;
    std::shared_ptr<CaptureOrders> m_orders; ///< None while it does not run.
    std::shared_ptr<std::atomic<int>> m_threads = std::make_shared<std::atomic<int>>(0); ///< Not ended yet.
    bool m_delayed = false; ///< Too many of them have not.
    PostBack m_back;
};

} // namespace Kestrune
