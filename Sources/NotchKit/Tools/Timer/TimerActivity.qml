import QtQuick
import Kestrune.Views

/// The countdown in the wings of the closed notch.
ActivityWings {
    id: activity

    required property TimerModel model

    Accessible.role: Accessible.StaticText
    Accessible.name: qsTranslate("notch", "Timer") + " " + time.text

    leading: Symbol {
        anchors.centerIn: parent
        name: "timer"
        color: activity.model.finished ? Theme.accent : Theme.text
        size: 14
    }
    trailing: TimerFace {
        id: time

        readonly property string text: timer.finished ? qsTranslate("notch", "Done") : timer.format(remaining)

        anchors.centerIn: parent
        timer: activity.model
        surroundings: activity.surroundings
        size: 13
        shown: activity.visible
    }
}
