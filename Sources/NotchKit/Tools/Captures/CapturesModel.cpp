#include "CapturesModel.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/Platform/OfferedPictures.h"
#include "NotchKit/Platform/Thumbnails.h"
#include "NotchKit/Platform/Workspace.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongestPictureReading = 2s;
constexpr qint64 kMostPictureBytes =
    qint64{64} * 1024 * 1024; // Of a picture; a larger one is copied as a file.

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kMostPictureBytes || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(kMostPictureBytes);
}

/// The newest of them, newest first.
QList<ScreenCapture> newest(QList<ScreenCapture> captures)
{
    if (captures.size() > ScreenCaptureQuery::kMostResults)
        captures.resize(ScreenCaptureQuery::kMostResults);
    std::ranges::stable_sort(captures, std::ranges::greater(), &ScreenCapture::created);
    if (captures.size() > CapturesModel::kMostItems)
        captures.resize(CapturesModel::kMostItems);
    return captures;
}

CapturesModel::Items itemsOf(const QList<ScreenCapture> &captures)
{
    CapturesModel::Items items;
    for (const ScreenCapture &capture : captures)
        items.append({capture.path, QUrl::fromLocalFile(capture.path), capture.created});
    return items;
}

} // namespace

CapturesModel::CapturesModel(NotchSettings &settings, Clock &clock, ScreenCaptureQuery &query,
                             Thumbnails &thumbnails, Pasteboard &pasteboard, Workspace &workspace,
                             std::shared_ptr<PictureReader> pictures, QObject *parent)
    : ToolModel(NotchTool::captures, parent)
    , m_settings(settings)
    , m_clock(clock)
    , m_query(query)
    , m_maker(thumbnails)
    , m_pasteboard(pasteboard)
    , m_workspace(workspace)
    , m_pictures(std::move(pictures))
{
    m_query.installHandler([this] { reload(); });
    connect(&settings, &NotchSettings::toolsChanged, this, &CapturesModel::followSetting);
}

CapturesModel::~CapturesModel()
{
    stop();
    m_query.installHandler({});
}

QVariant CapturesModel::freshForViews() const
{
    const auto item = fresh();
    return item ? QVariant::fromValue(*item) : QVariant();
}

void CapturesModel::start()
{
    if (std::exchange(m_runs, true))
        return;
    m_gathered = false;
    m_query.start();
}

void CapturesModel::stop()
{
    if (!std::exchange(m_runs, false))
        return;
    m_query.stop();
    m_fresh = std::nullopt;
    m_items = Items();
    m_needsAccess = false;
    forget({});
}

void CapturesModel::hubStarted()
{
    m_hubRuns = true;
    followSetting();
}

void CapturesModel::hubStopped()
{
    m_hubRuns = false;
    followSetting();
}

void CapturesModel::followSetting()
{
    if (m_hubRuns && m_settings.isEnabled(tool()))
        start();
    else
        stop();
}

void CapturesModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible != tool())
        return;
    m_fault = QString();
    requestAccess();
    if (!m_editor.isWaiting())
        m_editor.start(&CapturesModel::lookForEditor, this);
}

void CapturesModel::requestAccess() { m_query.requestAccess(); }

void CapturesModel::openPrivacySettings()
{
    m_workspace.open(QUrl(
        QStringLiteral("x-apple.systempreferences:com.apple.preference.security?Privacy_FilesAndFolders")));
}

ToolModel::Activity CapturesModel::activity() const
{
    return m_fresh.value() ? Activity::announcement : Activity::none;
}

ToolModel::Pace CapturesModel::pace() const { return m_fresh.value() ? Pace::seconds : Pace::rest; }

void CapturesModel::tick(const ClockTick &tick)
{
    if (fresh() && tick.now > m_freshUntil)
        m_fresh = std::nullopt;
}

void CapturesModel::reload()
{
    if (!m_runs)
        return;
    const QList<ScreenCapture> captures = newest(m_query.results());
    const Items before = items();
    // What is found first, or once it may be read, is not new, whatever its age.
    const bool canBeNew = std::exchange(m_gathered, true) && !needsAccess();
    m_needsAccess = m_query.isAccessMissing();
    m_items = itemsOf(captures);
    announce(before, canBeNew);
    forget(items());
    requestThumbnails(captures);
}

void CapturesModel::announce(const Items &before, bool canBeNew)
{
    const auto first = items().isEmpty() ? std::nullopt : std::optional(items().first());
    if (canBeNew && first && (before.isEmpty() || first->date > before.first().date)) {
        m_freshUntil = m_clock.now().addSecs(kFreshSeconds);
        m_fresh = first;
        return;
    }
    const auto announced = fresh();
    if (!announced || items().contains(*announced))
        return;
    // It was deleted, or renamed right after it was made: then it is the same one under its new name.
    m_fresh = first && first->date >= announced->date ? first : std::nullopt;
}

void CapturesModel::forget(const Items &kept)
{
    const auto isKept = [&](const QString &id) {
        return std::ranges::find(kept, id, &Item::id) != kept.end();
    };
    std::erase_if(m_requests, [&](const auto &request) { return !isKept(request.first); });
    QVariantMap images = thumbnails();
    images.removeIf([&](QVariantMap::iterator image) { return !isKept(image.key()); });
    if (images.size() != thumbnails().size())
        m_thumbnails = images;
}

/// The newest is asked for last, and so made first.
void CapturesModel::requestThumbnails(const QList<ScreenCapture> &captures)
{
    for (auto capture = captures.crbegin(); capture != captures.crend(); ++capture) {
        Request &request = m_requests[capture->path];
        if (request.modified == capture->modified)
            continue;
        request.modified = capture->modified;
        request.making.restart(&CapturesModel::makeThumbnail, this, capture->path);
    }
}

QCoro::Task<> CapturesModel::makeThumbnail(QString id)
{
    const QFuture<QImage> asked = m_maker.thumbnail(id);
    const QImage image = co_await until(asked);
    receive(id, image);
}

void CapturesModel::receive(const QString &id, const QImage &image)
{
    QVariantMap images = thumbnails();
    if (image.isNull())
        images.remove(id);
    else
        images.insert(id, image);
    m_thumbnails = images;
}

QUrl CapturesModel::find(const QString &id) const
{
    const auto found = std::ranges::find(items(), id, &Item::id);
    return found == items().end() ? QUrl() : found->url;
}

void CapturesModel::open(const QString &id)
{
    if (const QUrl url = find(id); !url.isEmpty())
        m_workspace.open(url);
}

void CapturesModel::copy(const QString &id)
{
    if (const QUrl url = find(id); !url.isEmpty())
        m_copying.restart(&CapturesModel::copyFile, this, url);
}

QCoro::Task<> CapturesModel::copyFile(QUrl url)
{
    const QString path = url.toLocalFile();
    const auto read = [path] { return contentsOf(path); };
    const QFuture<QByteArray> reading = m_files.run(kLongestPictureReading, read);
    const QByteArray bytes = co_await until(reading);
    PasteboardContent content(QList<QUrl>{url});
    if (!bytes.isEmpty())
        content.pictures = offeredPictures({pictureTypeOf(path), [bytes] { return bytes; }}, m_pictures);
    m_pasteboard.write(content);
}

void CapturesModel::reveal(const QString &id)
{
    if (const QUrl url = find(id); !url.isEmpty())
        m_workspace.reveal({url});
}

QCoro::Task<> CapturesModel::lookForEditor()
{
    const QFuture<bool> asked = m_workspace.hasPictureEditor();
    m_canEdit = co_await until(asked);
}

void CapturesModel::edit(const QString &id)
{
    if (const QUrl url = find(id); !url.isEmpty())
        m_workspace.edit(url);
}

void CapturesModel::trash(const QString &id)
{
    m_fault = QString();
    if (const QUrl url = find(id); !url.isEmpty())
        m_trashing.start(&CapturesModel::moveToTrash, this, url);
}

QCoro::Task<> CapturesModel::moveToTrash(QUrl file)
{
    const QFuture<bool> asked = m_workspace.moveToTrash(file);
    const bool moved = co_await until(asked);
    if (!moved)
        m_fault = notchStrings(QT_TRANSLATE_NOOP("notch", "%1 could not be moved to the trash."))
                      .arg(file.fileName());
}

} // namespace Kestrune
