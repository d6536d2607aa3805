import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A thin bar at the trailing edge, there only while something can be scrolled.
T.ScrollBar {
    id: bar

    property Look look: Theme

    implicitWidth: 6
    implicitHeight: 6
    minimumSize: 0.12
    visible: size < 1
    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: bar.pressed || bar.hovered ? bar.look.dim : bar.look.highlighted
    }
}
