import QtQuick
import Kestrune.Views

/// A row of a group: its title, with a symbol before it where one is given, and its controls at the end.
///
///   | symbol  title         controls |
Item {
    id: row

    required property string title
    property string symbol: ""
    property bool first: false // No hairline above.
    property Look look: Theme.window
    default property alias controls: trailing.data

    width: parent?.width ?? 0
    implicitHeight: row.look.rowHeight

    Rectangle {
        visible: !row.first
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: row.look.rowInset }
        height: 1
        color: row.look.divider
    }
    Symbol {
        id: icon

        visible: row.symbol !== ""
        anchors { left: parent.left; leftMargin: row.look.rowInset; verticalCenter: parent.verticalCenter }
        width: visible ? 20 : 0
        name: row.symbol
        size: 17
        color: row.look.dim
    }
    FormLabel {
        anchors {
            left: icon.visible ? icon.right : parent.left
            leftMargin: icon.visible ? 10 : row.look.rowInset
            right: trailing.left
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        look: row.look
        text: row.title
        opacity: row.enabled ? 1 : row.look.disabledOpacity
        Accessible.ignored: true // The controls bear the name.
    }
    Row {
        id: trailing

        anchors { right: parent.right; rightMargin: row.look.rowInset; verticalCenter: parent.verticalCenter }
        spacing: 8
    }
}
