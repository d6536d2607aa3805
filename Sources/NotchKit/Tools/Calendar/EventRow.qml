import QtQuick
import Kestrune.Views

/// One event: its calendar's colour, its title, and when it begins.
///
///   | title
///   | when
Item {
    id: row

    required property calendarItem item
    required property date now

    implicitHeight: 32
    Accessible.role: Accessible.StaticText
    Accessible.name: row.item.title + ", " + when.text

    Rectangle {
        id: bar

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: 3
        height: 26
        radius: 2
        color: CalendarFormat.visible(row.item.color)
    }
    Column {
        anchors { left: bar.right; leftMargin: 9; right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: 1

        PlainText {
            width: parent.width
            text: row.item.title
            font.pixelSize: Theme.fontSize
            color: Theme.text
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            maximumLineCount: 1
            Accessible.ignored: true
        }
        PlainText {
            id: when

            width: parent.width
            text: CalendarFormat.when(row.item.start, row.item.allDay, row.now)
            font.pixelSize: Theme.tinyFontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
