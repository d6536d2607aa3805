import QtQuick
import Kestrune.Views

/// How far a song has been played, with the times below if it is `timed`. Where the player can seek, a press, a drag
/// or the arrow keys choose another place.
Item {
    id: bar

    required property var track // A PlayingTrack, or undefined.
    required property bool timed
    readonly property bool seekable: track !== undefined && track.canSeek && track.duration > 0
    property real held: -1 ///< Where it is dragged to, from 0 to 1.
    readonly property real progress: held >= 0 ? held : track ? track.progress : 0
    readonly property real position: held >= 0 && track ? held * track.duration : track ? track.position : 0

    signal seek(real position)

    function step(seconds: real) {
        if (bar.seekable)
            bar.seek(Math.max(0, Math.min(bar.track.position + seconds, bar.track.duration)));
    }

    // Time runs to the right in every language, as the arrows of the controls do.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    activeFocusOnTab: seekable
    Keys.onLeftPressed: step(-5)
    Keys.onRightPressed: step(5)
    Accessible.role: seekable ? Accessible.Slider : Accessible.ProgressBar
    Accessible.name: elapsed.text
    Accessible.onIncreaseAction: step(5)
    Accessible.onDecreaseAction: step(-5)

    Rectangle {
        id: groove

        anchors { left: parent.left; right: parent.right; top: parent.top; topMargin: bar.timed ? 4 : 1 }
        height: 4
        radius: 2
        color: Theme.groove
        clip: true

        Rectangle {
            width: groove.width * bar.progress
            height: parent.height
            radius: parent.radius
            color: Theme.text
        }
    }
    Rectangle {
        x: groove.width * bar.progress - width / 2
        anchors.verticalCenter: groove.verticalCenter
        visible: bar.seekable && (place.containsMouse || place.pressed || bar.activeFocus)
        width: 12
        height: width
        radius: width / 2
        color: Theme.text

        FocusRing {
            visible: bar.activeFocus
        }
    }
    MouseArea {
        id: place

        function fraction(x: real): real {
            return Math.max(0, Math.min(x / width, 1));
        }

        anchors { left: groove.left; right: groove.right; verticalCenter: groove.verticalCenter }
        height: 16
        enabled: bar.seekable
        hoverEnabled: true
        preventStealing: true
        onPressed: mouse => bar.held = fraction(mouse.x)
        onPositionChanged: mouse => {
            if (pressed)
                bar.held = fraction(mouse.x);
        }
        onReleased: {
            if (bar.seekable)
                bar.seek(bar.held * bar.track.duration);
            bar.held = -1;
        }
        onCanceled: bar.held = -1
    }
    TabularText {
        id: elapsed

        anchors { left: parent.left; bottom: parent.bottom }
        visible: bar.timed
        text: Format.playTime(bar.position)
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
