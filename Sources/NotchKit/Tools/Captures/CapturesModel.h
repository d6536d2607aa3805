#pragma once

#include "Async/Scope.h"
#include "Async/Worker.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/ScreenCaptureQuery.h"
#include "NotchKit/ToolModel.h"

#include <QImage>
#include <QProperty>
#include <QUrl>
#include <QVariantMap>

#include <map>
#include <memory>

namespace Kestrune {

class Pasteboard;
class PictureReader;
class Thumbnails;
class Workspace;

/// One screenshot in the list.
class CaptureItem
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QUrl url MEMBER url)
    Q_PROPERTY(QString name READ name)
    Q_PROPERTY(QDateTime date MEMBER date)

public:
    QString id;     ///< The file's path.
    QUrl url;       ///< Of the file.
    QDateTime date; ///< Its creation, UTC.

    /// The file's name.
    QString name() const { return url.fileName(); }

    bool operator==(const CaptureItem &) const = default;
};

/// The newest screenshots on the disk, with small pictures of them. A new one is fresh for some seconds, in
/// which the closed notch announces it. Follows the disk while the hub runs and the tool is enabled; nothing
/// is stored. Main thread only.
class CapturesModel : public ToolModel
{
    Q_OBJECT
    Q_PROPERTY(QList<Kestrune::CaptureItem> items READ items NOTIFY itemsChanged)
    /// By the items' ids, a QImage each; without those that are not made yet or cannot be.
    Q_PROPERTY(QVariantMap thumbnails READ thumbnails NOTIFY thumbnailsChanged)
    /// The item that is announced; undefined without one.
    Q_PROPERTY(QVariant fresh READ freshForViews NOTIFY freshChanged)
    /// The screenshots cannot be read before the user allows it.
    Q_PROPERTY(bool needsAccess READ needsAccess NOTIFY needsAccessChanged)
    /// A program is installed in which screenshots can be edited.
    Q_PROPERTY(bool canEdit READ canEdit NOTIFY canEditChanged)
    /// What went wrong last, in the user's language; empty when nothing did.
    Q_PROPERTY(QString fault READ fault NOTIFY faultChanged)

public:
    using Item = CaptureItem;
    using Items = QList<CaptureItem>;

    static constexpr int kMostItems = 24;
    static constexpr int kFreshSeconds = 6;

    CapturesModel(NotchSettings &settings, Clock &clock, ScreenCaptureQuery &query, Thumbnails &thumbnails,
                  Pasteboard &pasteboard, Workspace &workspace, std::shared_ptr<PictureReader> pictures,
                  QObject *parent = nullptr);
    ~CapturesModel() override;

    /// Newest first.
    const Items &items() const { return m_items.value(); }
    const QVariantMap &thumbnails() const { return m_thumbnails.value(); }
    std::optional<Item> fresh() const { return m_fresh; }
    QVariant freshForViews() const;
    bool needsAccess() const { return m_needsAccess; }
    bool canEdit() const { return m_canEdit; }
    QString fault() const { return m_fault; }

    /// Starts and stops the live query; the hub's start and stop and the tool's switch do the same.
    void start();
    void stop();

    /// Looks again whether the screenshots may be read.
    void requestAccess();

    /// Opens the settings page on which the user can allow it.
    Q_INVOKABLE void openPrivacySettings();

    /// What can be done with the item of that id; unknown ids are ignored.
    Q_INVOKABLE void open(const QString &id);   ///< In its default application.
    Q_INVOKABLE void copy(const QString &id);   ///< The picture and the file, onto the pasteboard.
    Q_INVOKABLE void reveal(const QString &id); ///< In the file manager.
    Q_INVOKABLE void edit(const QString &id);   ///< In the installed editor.
    Q_INVOKABLE void trash(const QString &id);  ///< It leaves the list when it is in the trash.

    Activity activity() const override;
    Pace pace() const override;
    void hubStarted() override;
    void hubStopped() override;
    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void itemsChanged();
    void thumbnailsChanged();
    void freshChanged();
    void needsAccessChanged();
    void canEditChanged();
    void faultChanged();

private:
    /// What was asked for, of which state of the file. Dropping it gives the answer up.
    struct Request
    {
        QDateTime modified;
        Scope making;
    };

    void followSetting();
    void reload();
    void announce(const Items &before, bool canBeNew);
    void requestThumbnails(const QList<ScreenCapture> &captures);
    QCoro::Task<> makeThumbnail(QString id);
    QCoro::Task<> lookForEditor();
    QCoro::Task<> moveToTrash(QUrl file);
    void forget(const Items &kept);
    void receive(const QString &id, const QImage &image);
    QCoro::Task<> copyFile(QUrl url);
    QUrl find(const QString &id) const;

    NotchSettings &m_settings;
    Clock &m_clock;
    ScreenCaptureQuery &m_query;
    Thumbnails &m_maker;
    Pasteboard &m_pasteboard;
    Workspace &m_workspace;
    std::shared_ptr<PictureReader> m_pictures;
    bool m_hubRuns = false;
    bool m_runs = false;
    bool m_gathered = false; ///< Since the start.
    QDateTime m_freshUntil;
    Worker m_files{"screenshots"};         ///< What looks into files, which may hang.
    Scope m_copying;                       ///< One at a time.
    std::map<QString, Request> m_requests; ///< By id, for every item whose thumbnail is made or under way.
    Q_OBJECT_BINDABLE_PROPERTY(CapturesModel, Items, m_items, &CapturesModel::itemsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CapturesModel, QVariantMap, m_thumbnails, &CapturesModel::thumbnailsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CapturesModel, std::optional<CaptureItem>, m_fresh,
                               &CapturesModel::freshChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CapturesModel, bool, m_needsAccess, false,
                                         &CapturesModel::needsAccessChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CapturesModel, bool, m_canEdit, false,
                                         &CapturesModel::canEditChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CapturesModel, QString, m_fault, &CapturesModel::faultChanged)
    Scope m_editor;
    Scope m_trashing;
};

} // namespace Kestrune
