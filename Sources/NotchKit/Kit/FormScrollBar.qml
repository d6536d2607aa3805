import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A thin bar at the window's edge.
T.ScrollBar {
    id: bar

    implicitWidth: 12
    padding: 3
    minimumSize: 0.1
    visible: size < 1
    contentItem: Rectangle {
        implicitWidth: 6
        radius: 3
        color: bar.pressed || bar.hovered ? Theme.window.dim : Theme.window.highlighted
    }
}
