import QtQuick
import Kestrune.Views

/// How far a song has been played, with the times below if it is `timed`.
Item {
    id: bar

    required property var track // A PlayingTrack, or undefined.
    required property bool timed

    // Time runs to the right in every language, as the arrows of the controls do.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.ProgressBar
    Accessible.name: elapsed.text

    Rectangle {
        id: groove

        anchors { left: parent.left; right: parent.right; top: parent.top; topMargin: bar.timed ? 4 : 1 }
        height: 4
        radius: 2
        color: Theme.groove
        clip: true

        Rectangle {
            width: groove.width * (bar.track ? bar.track.progress : 0)
            height: parent.height
            radius: parent.radius
            color: Theme.text
        }
    }
    TabularText {
        id: elapsed

        anchors { left: parent.left; bottom: parent.bottom }
        visible: bar.timed
        text: Format.playTime(bar.track ? bar.track.position : 0)
        size: 11
        color: Theme.dim
    }
    TabularText {
        anchors { right: parent.right; bottom: parent.bottom }
        visible: bar.timed && bar.track !== undefined && bar.track.duration > 0
        text: Format.playTime(bar.track ? bar.track.duration : 0)
        size: 11
        color: Theme.dim
    }
}
