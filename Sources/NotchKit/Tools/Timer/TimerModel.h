#pragma once

#include "NotchKit/Platform/Clock.h"
#include "NotchKit/ToolModel.h"

#include <QProperty>

namespace Kestrune {

class NotchSettings;
class SoundPlayer;

/// A countdown: idle, running (it has an end date) or paused (it has a remainder). It lives only while the
/// process runs. Times are seconds; points in time are UTC. Main thread only.
class TimerModel : public ToolModel
{
    Q_OBJECT
    /// The length that the next start counts down from.
    Q_PROPERTY(double duration READ duration NOTIFY durationChanged BINDABLE bindableDuration)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY endDateChanged)
    /// Running or paused.
    Q_PROPERTY(bool isActive READ isActive NOTIFY activeChanged)
    /// A countdown reached zero and no other was started or reset since.
    Q_PROPERTY(bool finished READ finished NOTIFY finishedChanged BINDABLE bindableFinished)
    /// The same, and the user has not seen it yet: neither the pane nor its Home block was on screen since.
    Q_PROPERTY(bool unseen READ unseen NOTIFY unseenChanged)
    Q_PROPERTY(QList<double> presets READ presets CONSTANT)

public:
    TimerModel(NotchSettings &settings, Clock &clock, SoundPlayer &sounds, QObject *parent = nullptr);

    static QList<double> presets() { return {300, 900, 1500, 3000}; }

    /// "1:05", or "1:00:00" from an hour on; a begun second counts whole.
    Q_INVOKABLE static QString format(double seconds);

    /// The seconds that a text names as `format` writes them ("1:05", "1:30:00"), or a number of minutes
    /// ("45"), at least one minute and at most three hours; nothing for anything else.
    static std::optional<double> parse(const QString &text);

    /// Whether it is such a text.
    Q_INVOKABLE static bool isLength(const QString &text) { return parse(text).has_value(); }

    double duration() const { return m_duration; }
    std::optional<QDateTime> endDate() const { return m_endDate; }
    std::optional<double> pausedRemaining() const { return m_pausedRemaining; }
    bool finished() const { return m_finished; }
    bool unseen() const { return m_unseen; }
    bool isRunning() const { return endDate().has_value(); }
    bool isActive() const { return isRunning() || pausedRemaining().has_value(); }
    QBindable<double> bindableDuration() { return &m_duration; }
    QBindable<bool> bindableFinished() { return &m_finished; }

    /// The time left at `date`; while idle, the whole duration.
    Q_INVOKABLE double remaining(const QDateTime &date) const;

    /// Starts afresh with a new length.
    Q_INVOKABLE void start(double seconds);

    /// Resumes where it was paused, else counts down from `duration`.
    Q_INVOKABLE void start();

    Q_INVOKABLE void pause();
    Q_INVOKABLE void reset();

    /// Changes the duration, between one minute and three hours, while idle.
    Q_INVOKABLE void adjust(double minutes);

    /// Makes what the user typed the duration, while idle; false for what is no length of time.
    Q_INVOKABLE bool setLength(const QString &text);

    /// The user knows that it is over.
    void markSeen() { m_unseen = false; }

    Activity activity() const override;
    Pace pace() const override { return isRunning() ? Pace::seconds : Pace::rest; }
    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void durationChanged();
    void endDateChanged();
    void pausedRemainingChanged();
    void activeChanged();
    void finishedChanged();
    void unseenChanged();

private:
    void setDuration(double seconds);
    bool isShownOn(std::optional<NotchTool> visible) const;

    NotchSettings &m_settings;
    Clock &m_clock;
    SoundPlayer &m_sounds;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TimerModel, double, m_duration, 1500, &TimerModel::durationChanged)
    Q_OBJECT_BINDABLE_PROPERTY(TimerModel, std::optional<QDateTime>, m_endDate, &TimerModel::endDateChanged)
    Q_OBJECT_BINDABLE_PROPERTY(TimerModel, std::optional<double>, m_pausedRemaining,
                               &TimerModel::pausedRemainingChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TimerModel, bool, m_finished, false, &TimerModel::finishedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TimerModel, bool, m_unseen, false, &TimerModel::unseenChanged)
};

} // namespace Kestrune
