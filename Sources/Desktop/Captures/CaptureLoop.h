#pragma once

#include "CaptureList.h"
#include "FolderWatch.h"

#include <functional>
#include <memory>
#include <mutex>

namespace Kestrune {

/// What the main thread tells the loop, and what the loop sleeps on.
class CaptureOrders
{
public:
    CaptureOrders();
    ~CaptureOrders();
    Q_DISABLE_COPY_MOVE(CaptureOrders)

    /// Main thread: look again at where screenshots are, `location` being the user's choice; or end.
    void look(const QString &location);
    void end();

    int descriptor() const { return m_descriptor; }
    bool isEnded() const;

    /// The last location since the last call; nothing without one.
    std::optional<QString> take();

private:
    void wake() const;

    const int m_descriptor;
    mutable std::mutex m_mutex;
    bool m_ended = false;
    std::optional<QString> m_location;
};

/// Gathers the screenshots and follows the folders until it is told to end. Runs on a thread of its own and
/// sleeps while nothing happens.
class CaptureLoop
{
public:
    struct Findings
    {
        QList<ScreenCapture> captures;
        bool accessMissing = false;

        bool operator==(const Findings &) const = default;
    };
    using Report = std::function<void(const Findings &)>;

    /// `report` is called on the loop's thread, when the first gathering is done and after each change.
    CaptureLoop(std::shared_ptr<CaptureOrders> orders, Report report);
    ~CaptureLoop();
    Q_DISABLE_COPY_MOVE(CaptureLoop)

    void run();

private:
    /// What has to be done before the next sleep.
    struct Due
    {
        bool settings = false; ///< Read the tools' settings.
        bool folders = false;  ///< Look which folders there are.
        bool files = false;    ///< Look at all files.
    };

    void sleep();
    void handle(const FolderWatch::Event &event);
    void catchUp();
    void readSettings();
    bool watch();
    void tell();

    const std::shared_ptr<CaptureOrders> m_orders;
    const Report m_report;
    const int m_mounts; ///< Tells of mounts; -1 where that is not known.
    FolderWatch m_watch;
    CaptureList m_list;
    const QStringList m_toolFiles = screenshotToolFiles();
    QString m_location;
    ScreenshotTools m_tools;
    ScreenshotNames m_names;
    ScreenshotFolders m_folders;
    Due m_due{true, true, true};
    std::optional<Findings> m_told;
};

} // namespace Kestrune
