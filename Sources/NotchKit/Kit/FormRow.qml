import QtQuick
import Kestrune.Views

/// A row of a group: its title, with a symbol before it where one is given, a small note below it where there is
/// one to make, and its controls at the end.
///
///   | symbol  title         controls |
///   |         note                   |
Item {
    id: row

    required property string title
    property string note: ""
    property string symbol: ""
    property bool first: false // No hairline above.
    property Look look: Theme.window
    default property alias controls: trailing.data

    width: parent?.width ?? 0
    implicitHeight: row.look.rowHeight + (notice.visible ? notice.height : 0)

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
    Column {
        anchors {
            left: icon.visible ? icon.right : parent.left
            leftMargin: icon.visible ? 10 : row.look.rowInset
            right: trailing.left
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        spacing: 2
        opacity: row.enabled ? 1 : row.look.disabledOpacity

        FormLabel {
            width: parent.width
            look: row.look
            text: row.title
            Accessible.ignored: true // The controls bear the name, and the note.
        }
        FormLabel {
            id: notice

            visible: text !== ""
            width: parent.width
            look: row.look
            text: row.note
            font.pixelSize: row.look.smallFontSize
            color: row.look.dim
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    Row {
        id: trailing

        anchors { right: parent.right; rightMargin: row.look.rowInset; verticalCenter: parent.verticalCenter }
        spacing: 8
    }
}
