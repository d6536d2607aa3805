import QtQuick
import Kestrune.Views

/// The reminders that are due first.
HomeBlock {
    id: block

    required property CalendarModel model
    readonly property CalendarModel calendar: model
    readonly property bool allowed: calendar.reminderStatus === CalendarModel.Full
    readonly property list<calendarReminder> first: allowed ? calendar.reminders.slice(0, 4) : []
    readonly property date now: shown ? surroundings.now : new Date(0)

    title: qsTranslate("notch", "Reminders")

    Column {
        width: parent.width
        spacing: 8

        SectionLabel {
            title: block.title
            symbol: "checklist"
        }
        PlainText {
            width: parent.width
            visible: block.allowed && block.calendar.remindersKnown && block.first.length === 0
            //: Instead of a list: no reminder is left.
            text: qsTranslate("notch", "All done")
            font.pixelSize: Theme.fontSize
            color: Theme.dim
        }
        AccessButton {
            visible: block.calendar.remindersKnown && !block.allowed
            surroundings: block.surroundings
            status: block.calendar.reminderStatus
            allowTitle: qsTranslate("notch", "Allow Reminders")
            anchor: "Privacy_Reminders"
            onAllowed: block.calendar.requestReminderAccess()
        }
        Repeater {
            id: rows

            property int next: -1 // The place of the one that was completed with the keyboard.

            function giveKeyboard() {
                if (next >= 0)
                    itemAt(Math.min(next, count - 1))?.forceActiveFocus()
                next = -1
            }

            model: block.first
            onItemAdded: Qt.callLater(giveKeyboard)

            ReminderRow {
                required property calendarReminder modelData
                required property int index

                width: parent.width
                height: 20
                tipBelow: index === 0
                reminder: modelData
                now: block.now
                onCompleted: {
                    rows.next = focused ? index : -1
                    block.calendar.complete(reminder)
                }
            }
        }
    }
}
