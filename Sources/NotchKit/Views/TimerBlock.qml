import QtQuick
import Kestrune.Views

/// The countdown in brief.
HomeBlock {
    id: block

    tool: "timer"
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
            services: block.services
            size: 20
            shown: block.shown
        }
        HeaderButton {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            readonly property TimerModel timer: block.services.timer

            symbol: timer.isRunning ? "pause.fill" : "play.fill"
            help: timer.isRunning ? qsTranslate("notch", "Pause")
                : timer.isActive ? qsTranslate("notch", "Resume")
                : qsTranslate("notch", "Start")
            onClicked: timer.isRunning ? timer.pause() : timer.start()
        }
    }
}
