import QtQuick
import Kestrune.Views

/// A help text beside a control, after a moment, kept inside the notch or a smaller window.
Rectangle {
    id: tip

    required property Item anchor
    required property string text
    property bool below: false

    /// How far the tip must move to stay inside.
    function shift() {
        const scene = anchor.Window.window
        if (!scene)
            return 0
        const margin = Math.max((scene.width - Theme.contentWidth) / 2, 4)
        const left = anchor.mapToItem(null, anchor.width / 2 - width / 2, 0).x
        return Math.max(margin - left, 0) - Math.max(left + width - (scene.width - margin), 0)
    }

    readonly property point origin: anchor.mapToItem(parent, 0, 0)

    x: Math.round(origin.x + anchor.width / 2 - width / 2 + shift())
    y: Math.round(origin.y + (below ? anchor.height + 6 : -height - 6))
    z: 100
    width: Math.min(label.implicitWidth, Theme.contentWidth - 16) + 16
    height: label.implicitHeight + 8
    radius: 6
    color: Theme.tip
    visible: delay.done

    PlainText {
        id: label

        anchors.centerIn: parent
        width: tip.width - 16
        elide: Text.ElideMiddle
        text: tip.text
        color: Theme.text
        font.pixelSize: Theme.smallFontSize
        Accessible.ignored: true
    }

    Timer {
        id: delay

        property bool done: false

        interval: 600
        running: true
        onTriggered: done = true
    }
}
