import QtQuick
import Kestrune.Views

/// Shows what has the keyboard: a ring along the edge of its parent, a `Rectangle`, or `gap` points around it.
Rectangle {
    property Look look: Theme
    property int gap: look.focusGap

    anchors { fill: parent; margins: -gap }
    radius: ((parent as Rectangle)?.radius ?? 0) + gap
    color: "transparent"
    border { width: 2; color: look.accent }
}
