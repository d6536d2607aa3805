import QtQuick
import Kestrune.Views

/// One reminder: a circle to complete it, its title, and when it is due.
FocusScope {
    id: row

    required property calendarReminder reminder
    required property date now
    readonly property bool focused: complete.activeFocus
    property alias tipBelow: complete.tipBelow

    signal completed

    implicitHeight: 26
    z: tipBelow ? 1 : 0 // over the next row

    // Wider than the circle, so that the tip does not begin outside the row, where lists cut it off.
    Item {
        id: tipPlace

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: 84
        height: complete.height
    }

    SymbolButton {
        id: complete

        focus: true
        // so that the circle stands below the title's symbol
        anchors { left: parent.left; leftMargin: -5; verticalCenter: parent.verticalCenter }
        width: 24
        height: 24
        symbol: "circle"
        size: 15
        ink: hovered ? Theme.text : CalendarFormat.visible(row.reminder.color)
        //: A verb, on the circle before a reminder: mark it as done.
        help: qsTranslate("notch", "Complete")
        radius: 12
        tipAnchor: tipPlace
        Accessible.name: help + ": " + row.reminder.title
        onClicked: row.completed()
    }
    PlainText {
        anchors {
            left: complete.right
            leftMargin: 3
            right: due.left
            rightMargin: due.text === "" ? 0 : 8
            verticalCenter: parent.verticalCenter
        }
        text: row.reminder.title
        font.pixelSize: Theme.fontSize
        color: Theme.text
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        maximumLineCount: 1
    }
    PlainText {
        id: due

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: CalendarFormat.due(row.reminder.due, row.now)
        font.pixelSize: Theme.tinyFontSize
        color: CalendarFormat.isOverdue(row.reminder.due, row.now) ? Theme.warning : Theme.dim
    }
}
