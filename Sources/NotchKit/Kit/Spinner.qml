import QtQuick
import Kestrune.Views

/// Eight dots that a light runs around, a step at a time, while something goes on. It takes its room all the
/// time, so that nothing moves.
Item {
    id: spinner

    required property bool running
    property color color: Theme.text
    property int step: 0

    implicitWidth: 16
    implicitHeight: 16
    opacity: running ? 1 : 0

    Timer {
        interval: 100
        repeat: true
        running: spinner.running && spinner.visible
        onTriggered: spinner.step = (spinner.step + 1) % 8
    }
    Repeater {
        model: 8

        Rectangle {
            required property int index

            x: 6.5 + 6 * Math.sin(index * Math.PI / 4)
            y: 6.5 - 6 * Math.cos(index * Math.PI / 4)
            width: 3
            height: 3
            radius: 1.5
            color: spinner.color
            opacity: 1 - ((spinner.step - index + 8) % 8) * 0.12
        }
    }
}
