import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A title in a picker's list, with a dot before the chosen one.
T.ItemDelegate {
    id: entry

    property bool chosen: false

    implicitHeight: 26
    hoverEnabled: true
    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.selected: chosen
    background: Rectangle {
        radius: Theme.window.controlRadius - 2
        color: entry.highlighted ? Theme.window.accent : "transparent"
    }
    contentItem: FormLabel {
        leftPadding: Theme.mirrored ? 0 : 20
        rightPadding: Theme.mirrored ? 20 : 0
        text: entry.text
        color: entry.highlighted ? Theme.window.accentText : Theme.window.text
        Accessible.ignored: true

        Rectangle {
            visible: entry.chosen
            anchors { left: parent.left; leftMargin: 8; verticalCenter: parent.verticalCenter }
            width: 5
            height: 5
            radius: 2.5
            color: parent.color
        }
    }
}
