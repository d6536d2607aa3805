#pragma once

#include "NotchKit/Platform/Clock.h"
#include "NotchKit/ToolModel.h"
#include "ScriptBridge.h"

#include <QProperty>
#include <QVariant>

#include <list>
#include <map>
#include <memory>

namespace Kestrune {

class NotchSettings;
class RunningApplications;

/// The song that one of the media players plays or has paused, its cover, and what can be done with it. A
/// player that is not running is never asked. Looks when the players tell of a change; where they do not,
/// every two seconds while the song shows anywhere, else every five. Not at all while the tool is off. Main
/// thread only.
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

    /// Asks every running player. A playing one is preferred to a paused one, then of two that are paused the
    /// one that was used last, then the first to the second.
    void refresh() { m_looks.start(&NowPlayingModel::look, this); }

    /// Sends a command to the player that is shown, if any, and looks a quarter of a second later.
    void send(ScriptBridge::Command command);
    Q_INVOKABLE void playPause() { send(ScriptBridge::Command::playPause); }
    Q_INVOKABLE void next() { send(ScriptBridge::Command::next); }
    Q_INVOKABLE void previous() { send(ScriptBridge::Command::previous); }

    /// Sets the position in the song, in seconds, where its player can.
    Q_INVOKABLE void seek(double position);

    /// Forgets the song; not whether it may be asked for.
    void clear();

    Activity activity() const override;
    Pace pace() const override;
    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void playerChanged();
    void trackChanged();
    void artworkChanged();
    void permissionDeniedChanged();

private:
    using Found = std::optional<std::pair<Player, Track>>;

    /// What a player did last, as far as it was seen.
    struct Use
    {
        QString title;
        bool playing = false;
        int number = 0; ///< Counts all uses.
    };

    QList<Player> runningPlayers() const;
    bool isEnabled() const;
    bool isShown(NotchTool visible) const;
    void followSetting();
    void noticed();
    void advance();
    void noteUse(Player player, const Track &track);
    bool isBetter(Player player, const Track &track, const Found &best) const;
    void consider(Player player, const ScriptBridge::Result &result, Found &best);
    void setTrack(const Track &track);
    void lookLater();
    QCoro::Task<> look();
    QCoro::Task<> show(Player player, Track track);
    QCoro::Task<> carryOut(QFuture<ScriptOutcome> done);

    NotchSettings &m_settings;
    Clock &m_clock;
    RunningApplications &m_applications;
    std::list<std::unique_ptr<RunningTimer>> m_sleeps; ///< Between a command and its refresh, in their order.
    std::unique_ptr<RunningTimer> m_soon;              ///< A look at what was told.
    std::unique_ptr<RunningTimer> m_late;              ///< A look for what was not there yet.
    bool m_follows = false;                            ///< The players tell of changes.
    std::map<Player, Use> m_uses;
    int m_useCount = 0;
    std::chrono::nanoseconds m_heard{}; ///< When the position was `m_heardPosition`.
    double m_heardPosition = 0;
    QString m_song;       ///< Which song it is.
    QString m_artworkKey; ///< The same and its cover, which is held.
    int m_lateLooks = 0;  ///< So many in a row.
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
