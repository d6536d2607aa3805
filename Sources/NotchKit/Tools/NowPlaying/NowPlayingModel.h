#pragma once

#include "NotchKit/Platform/Clock.h"
#include "NotchKit/ToolModel.h"
#include "ScriptBridge.h"

#include <QProperty>
#include <QVariant>

#include <list>
#include <memory>

namespace Kestrune {

class NotchSettings;
class RunningApplications;

/// The song that one of the media players plays or has paused, its cover, and what can be done with it. A
/// player that is not running is never asked. Looks every two seconds while the song shows anywhere, else
/// every five, and not at all while the tool is off. Main thread only.
class NowPlayingModel : public ToolModel
{
    Q_OBJECT
    /// The song, a PlayingTrack; undefined without one.
    Q_PROPERTY(QVariant track READ trackForViews NOTIFY trackChanged)
    /// Its cover, a QImage; undefined without one.
    Q_PROPERTY(QVariant artwork READ artworkForViews NOTIFY artworkChanged)
    /// A player may not be asked before the user allows it.
    Q_PROPERTY(bool permissionDenied READ permissionDenied NOTIFY permissionDeniedChanged)

public:
    using Player = MediaPlayer;
    using Track = PlayingTrack;

    NowPlayingModel(NotchSettings &settings, Clock &clock, RunningApplications &applications,
                    ScriptExecutor &executor, HttpClient &http, std::shared_ptr<PictureReader> pictures,
                    QObject *parent = nullptr);

    std::optional<Player> player() const { return m_player; }
    std::optional<Track> track() const { return m_track; }
    const QImage &artwork() const { return m_artwork.value(); } ///< A null image without a cover.
    bool permissionDenied() const { return m_permissionDenied; }
    QVariant trackForViews() const;
    QVariant artworkForViews() const;

    /// Asks every running player. A playing one is preferred to a paused one, then the first to the second.
    void refresh() { m_looks.start(&NowPlayingModel::look, this); }

    /// Sends a command to the player that is shown, if any, and looks a quarter of a second later.
    void send(ScriptBridge::Command command);
    Q_INVOKABLE void playPause() { send(ScriptBridge::Command::playPause); }
    Q_INVOKABLE void next() { send(ScriptBridge::Command::next); }
    Q_INVOKABLE void previous() { send(ScriptBridge::Command::previous); }

    /// Forgets the song; not whether it may be asked for.
    void clear();

    Activity activity() const override;
    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void playerChanged();
    void trackChanged();
    void artworkChanged();
    void permissionDeniedChanged();

private:
    using Found = std::optional<std::pair<Player, Track>>;

    QList<Player> runningPlayers() const;
    bool isEnabled() const;
    bool isShown(NotchTool visible) const;
    void followSetting();
    void consider(Player player, const ScriptBridge::Result &result, Found &best);
    QCoro::Task<> look();
    QCoro::Task<> show(Player player, Track track);
    QCoro::Task<> carryOut(ScriptBridge::Command command, Player player);

    NotchSettings &m_settings;
    Clock &m_clock;
    RunningApplications &m_applications;
    std::list<std::unique_ptr<RunningTimer>> m_sleeps; ///< Between a command and its refresh, in their order.
    QString m_artworkKey;                              ///< Of the song whose cover is held.
    ScriptBridge m_bridge;
    Scope m_looks;
    Scope m_commands;
    Q_OBJECT_BINDABLE_PROPERTY(NowPlayingModel, std::optional<MediaPlayer>, m_player,
                               &NowPlayingModel::playerChanged)
    Q_OBJECT_BINDABLE_PROPERTY(NowPlayingModel, std::optional<PlayingTrack>, m_track,
                               &NowPlayingModel::trackChanged)
    Q_OBJECT_BINDABLE_PROPERTY(NowPlayingModel, QImage, m_artwork, &NowPlayingModel::artworkChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NowPlayingModel, bool, m_permissionDenied, false,
                                         &NowPlayingModel::permissionDeniedChanged)
};

} // namespace Kestrune
