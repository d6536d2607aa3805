#pragma once

#include "Async/Mailbox.h"
#include "CaptureList.h"
#include "FolderWatch.h"

#include <functional>
#include <memory>

namespace Kestrune {

/// Tells the loop to look again at where screenshots are; each is the user's choice of a folder.
using CaptureOrders = Mailbox<QString>;

/// Gathers the screenshots and follows the folders Runs on a thread of its own until
/// the orders are closed, and sleeps while nothing happens.
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
