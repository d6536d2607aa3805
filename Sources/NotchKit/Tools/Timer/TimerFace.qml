import QtQuick
import Kestrune.Views

/// The remaining time, or that it is over.
Item {
    id: face

    required property TimerModel timer
    required property NotchSurroundings surroundings
    property real size: 20
    /// Nothing is worked out while the face is off screen.
    property bool shown: true

    implicitWidth: timer.finished ? done.implicitWidth : time.implicitWidth
    implicitHeight: time.implicitHeight

    TabularText {
        id: time

        objectName: "time"
        anchors.centerIn: parent
        visible: !face.timer.finished
        text: face.shown ? face.timer.format(face.remaining) : ""
        size: face.size
        weight: Font.Light
    }
    PlainText {
        id: done

        anchors.centerIn: parent
        visible: face.timer.finished
        //: The time of the timer is over.
        text: qsTranslate("notch", "Done")
        font.pixelSize: face.size
        font.weight: Font.Light
        color: Theme.accent
    }

    // Reading the state as well as the clock keeps an idle timer's face right when its duration changes.
    readonly property real remaining: {
        void timer.isActive
        void timer.duration
        return shown ? timer.remaining(timer.isRunning ? surroundings.now : new Date(0)) : 0
    }
}
