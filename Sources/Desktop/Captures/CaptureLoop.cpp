#include "CaptureLoop.h"

#include "Log.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace Kestrune {

Q_LOGGING_CATEGORY(capturesLog, "kestrune.captures", QtWarningMsg)

namespace {

/// How long deletions are collected before everything is looked at again, in milliseconds.
constexpr int kCollecting = 200;
/// How often folders may change while they are being looked at, before that is given up.
constexpr int kMostLooks = 5;

bool isMissingAccess(const ScreenshotFolders &folders)
{
    using State = ScreenshotFolder::State;
    const auto first = std::ranges::find_if(
        folders, [](const ScreenshotFolder &folder) { return folder.state != State::missing; });
    return first != folders.end() && first->state == State::unreadable;
}

} // namespace

CaptureLoop::CaptureLoop(std::shared_ptr<CaptureOrders> orders, Report report)
    : m_orders(std::move(orders))
    , m_report(std::move(report))
    , m_mounts(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC))
{}

CaptureLoop::~CaptureLoop()
{
    if (m_mounts >= 0)
        ::close(m_mounts);
}

void CaptureLoop::run()
{
    while (!m_orders->isClosed()) {
        while (const auto location = m_orders->take()) {
            m_location = *location;
            m_due.settings = m_due.folders = true;
        }
        catchUp();
        tell();
        sleep();
    }
}

void CaptureLoop::sleep()
{
    std::array<pollfd, 3> sources{
        {{m_orders->descriptor(), POLLIN, 0}, {m_watch.descriptor(), POLLIN, 0}, {m_mounts, POLLPRI, 0}}};
    const bool collects = m_list.isIncomplete();
    const int happened = ::poll(sources.data(), sources.size(), collects ? kCollecting : -1);
    if (happened == 0)
        m_due.files = true;
    m_due.folders = m_due.folders || (sources[2].revents & POLLPRI) != 0;
    for (const FolderWatch::Event &event : m_watch.take())
        handle(event);
}

void CaptureLoop::handle(const FolderWatch::Event &event)
{
    if (event.lost) {
        qCInfo(capturesLog, "too much happened at once: everything is looked at again");
        m_due = {true, true, true};
        return;
    }
    const QString name = QFile::decodeName(event.name);
    const QString path = event.folder + QLatin1Char('/') + name;
    // A link can be a folder too.
    const auto leadsThrough = [&](const ScreenshotFolder &folder) {
        return folder.path == path || folder.path.startsWith(path + QLatin1Char('/'));
    };
    m_due.folders = m_due.folders || event.isFolder || ScreenshotNames::isScreenshotFolder(name) ||
                    std::ranges::any_of(m_folders, leadsThrough);
    m_due.settings = m_due.settings || m_toolFiles.contains(path);
    if (event.isFolder)
        return;
    const auto folder = std::ranges::find(m_folders, event.folder, &ScreenshotFolder::path);
    if (folder != m_folders.end())
        m_list.update(*folder, event.name, m_names);
}

void CaptureLoop::readSettings()
{
    ScreenshotTools tools = readScreenshotTools();
    m_due.files = m_due.files || tools != m_tools;
    m_names = ScreenshotNames(tools.patterns);
    m_tools = std::move(tools);
}

void CaptureLoop::catchUp()
{
    for (int i = 0; (m_due.settings || m_due.folders) && i < kMostLooks; ++i) {
        if (m_due.settings)
            readSettings();
        ScreenshotFolders found = findScreenshotFolders(m_location, m_tools);
        m_due.folders = found != m_folders;
        m_folders = std::move(found);
        // What was made before the watch, the next look finds. A new folder may even have an old one's
        // number.
        m_due.settings = watch();
        m_due.files = m_due.files || m_due.folders || m_due.settings;
    }
    if (m_due.settings || m_due.folders)
        qCInfo(capturesLog, "the folders keep changing");
    if (m_due.files)
        m_list.gather(m_folders, m_names);
    m_due = {};
}

bool CaptureLoop::watch()
{
    QStringList folders;
    for (const ScreenshotFolder &folder : m_folders)
        folders.append(folder.path);
    for (const QString &file : m_toolFiles)
        folders.append(QFileInfo(file).path());
    return m_watch.setFolders(folders);
}

void CaptureLoop::tell()
{
    Findings findings{m_list.captures(), isMissingAccess(m_folders)};
    if (m_told == findings)
        return;
    qCInfo(capturesLog, "%lld folders, %lld captures%s", static_cast<long long>(m_folders.size()),
           static_cast<long long>(findings.captures.size()),
           findings.accessMissing ? ", and no access to the first" : "");
    m_report(findings);
    m_told = std::move(findings);
}

} // namespace Kestrune
