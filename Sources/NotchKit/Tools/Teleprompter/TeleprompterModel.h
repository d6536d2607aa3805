#pragma once

#include "NotchKit/ToolModel.h"

#include <QProperty>

#include <limits>
#include <optional>

namespace Kestrune {

class NotchSettings;

/// A script that scrolls up slowly: playing or not, in the editor or not, and how far it has come. The
/// script, its speed and its size are settings. Distances are points. Main thread only.
class TeleprompterModel : public ToolModel
{
    Q_OBJECT
    /// The script scrolls. Playing ends the editing, and starts from the top when the end was reached.
    Q_PROPERTY(bool playing READ playing WRITE setPlaying NOTIFY playingChanged)
    /// The editor is shown instead of the script. Editing ends the playing.
    Q_PROPERTY(bool editing READ editing WRITE setEditing NOTIFY editingChanged)
    /// How far the script has scrolled up.
    Q_PROPERTY(double offset READ offset NOTIFY offsetChanged BINDABLE bindableOffset)
    /// How far it can scroll, told by the view that lays it out; infinite while that is not known.
    Q_PROPERTY(double maximumOffset READ maximumOffset WRITE setMaximumOffset NOTIFY maximumOffsetChanged)
    /// The seconds that the rest of the script takes at its speed, rounded up; -1 while that is not known.
    Q_PROPERTY(int secondsLeft READ secondsLeft NOTIFY secondsLeftChanged)

public:
    explicit TeleprompterModel(NotchSettings &settings, QObject *parent = nullptr);

    bool playing() const { return m_playing; }
    void setPlaying(bool playing);
    bool editing() const { return m_editing; }
    void setEditing(bool editing);
    double offset() const { return m_offset; }
    QBindable<double> bindableOffset() const { return QBindable<double>(&m_offset); }
    double maximumOffset() const { return m_maximumOffset; }
    void setMaximumOffset(double maximum);
    int secondsLeft() const { return m_secondsLeft; }

    /// How much of the script has passed, from 0 to 1; nothing while that is not known.
    std::optional<double> position() const;

    /// Moves to that part of the script, from 0 to 1; once it is laid out, where that is not known yet.
    void moveTo(double position);

    /// Back to the top; a playing script goes on from there.
    Q_INVOKABLE void restart();

    /// Moves the script by hand, down to its start and up to its end.
    Q_INVOKABLE void scrollTo(double offset);

    void hubStopped() override { setPlaying(false); }
    void visibleToolChanged(std::optional<NotchTool> visible) override;
    Pace pace() const override { return m_playing ? Pace::fast : Pace::rest; }
    void fastTick() override;

Q_SIGNALS:
    void playingChanged();
    void editingChanged();
    void offsetChanged();
    void maximumOffsetChanged();
    void secondsLeftChanged();

private:
    int computeSecondsLeft() const;

    NotchSettings &m_settings;
    std::optional<double> m_wantedPosition; ///< Until the script is laid out.
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TeleprompterModel, bool, m_playing, false,
                                         &TeleprompterModel::playingChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TeleprompterModel, bool, m_editing, false,
                                         &TeleprompterModel::editingChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TeleprompterModel, double, m_offset, 0,
                                         &TeleprompterModel::offsetChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TeleprompterModel, double, m_maximumOffset,
                                         std::numeric_limits<double>::infinity(),
                                         &TeleprompterModel::maximumOffsetChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(TeleprompterModel, int, m_secondsLeft, -1,
                                         &TeleprompterModel::secondsLeftChanged)
};

} // namespace Kestrune
