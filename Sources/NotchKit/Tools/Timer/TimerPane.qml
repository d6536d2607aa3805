import QtQuick
import Kestrune.Views

/// The countdown: time, presets, controls.
Pane {
    id: pane

    required property TimerModel model
    readonly property TimerModel timer: model

    first: length

    Column {
        anchors.centerIn: parent
        spacing: 16

        TimerLength {
            id: length

            anchors.horizontalCenter: parent.horizontalCenter
            timer: pane.timer
            surroundings: pane.surroundings
            screenModel: pane.screenModel
            shown: pane.visible
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.gap

            Repeater {
                model: pane.timer.presets

                TextButton {
                    required property real modelData

                    width: Math.max(implicitWidth, 72)
                    //: A button that starts a timer; “min” is short for minutes. There is little room.
                    text: qsTranslate("notch", "%Ln min", "", modelData / 60)
                    onClicked: pane.timer.start(modelData)
                }
            }
        }

        TimerControls {
            anchors.horizontalCenter: parent.horizontalCenter
            timer: pane.timer
        }

        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTranslate("notch", "The time stays visible beside the closed notch.")
            font.pixelSize: Theme.smallFontSize
            color: Theme.dim
        }
    }
}
