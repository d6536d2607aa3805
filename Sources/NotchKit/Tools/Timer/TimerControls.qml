import QtQuick
import Kestrune.Views

/// Start, pause or resume, and reset.
Row {
    id: controls

    required property TimerModel timer

    spacing: Theme.gap

    TextButton {
        width: Math.max(implicitWidth, 96)
        prominent: true
        symbol: controls.timer.isRunning ? "pause.fill" : "play.fill"
        text: controls.timer.isRunning ? qsTranslate("notch", "Pause")
            : controls.timer.isActive ? qsTranslate("notch", "Resume")
            : qsTranslate("notch", "Start")
        onClicked: controls.timer.isRunning ? controls.timer.pause() : controls.timer.start()
    }
    TextButton {
        width: Math.max(implicitWidth, 96)
        symbol: "arrow.counterclockwise"
        //: Set the timer back to its beginning.
        text: qsTranslate("notch", "Reset")
        enabled: controls.timer.isActive || controls.timer.finished
        onClicked: controls.timer.reset()
    }
}
