import QtQuick
import Kestrune.Views

/// The countdown in brief.
HomeBlock {
    id: block

    required property TimerModel model
    readonly property TimerModel timer: model

    title: qsTranslate("notch", "Timer")

    Item {
        width: parent.width
        height: 44

        SectionLabel {
            title: block.title
            symbol: "timer"
        }
        TimerFace {
            anchors.left: parent.left
            anchors.bottom: parent.bottom
            anchors.bottomMargin: -4
            timer: block.timer
            surroundings: block.surroundings
            size: 20
            shown: block.shown
        }
        SymbolButton {
            tipBelow: true
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: block.timer.isRunning ? "pause.fill" : "play.fill"
            help: block.timer.isRunning ? qsTranslate("notch", "Pause")
                : block.timer.isActive ? qsTranslate("notch", "Resume")
                //: Start the timer.
                : qsTranslate("notch", "Start")
            onClicked: block.timer.isRunning ? block.timer.pause() : block.timer.start()
        }
    }
}
