import QtQuick
import Kestrune.Views

/// What is left of today and tomorrow, and the reminders.
///
///   | events | reminders |
Pane {
    id: pane

    required property CalendarModel model
    readonly property CalendarModel calendar: model
    readonly property date now: visible ? surroundings.now : new Date(0)

    onPresented: {
        events.present()
        reminders.present()
    }

    CalendarSection {
        id: events

        anchors.left: parent.left
        width: (parent.width - Theme.gap) / 2
        height: parent.height
        calendar: pane.calendar
        surroundings: pane.surroundings
        //: Heading of the list of appointments.
        title: qsTranslate("notch", "Events")
        symbol: "calendar"
        status: pane.calendar.status
        known: pane.calendar.eventsKnown
        allowTitle: qsTranslate("notch", "Allow Calendar")
        anchor: "Privacy_Calendars"
        emptyText: qsTranslate("notch", "Nothing else today or tomorrow.")
        listName: "items"
        notice: CalendarFormat.unread(pane.calendar.unread)
        onAllowed: pane.calendar.requestAccess()
        delegate: EventRow {
            required property calendarItem modelData

            transform: Translate { x: Theme.mirrored ? 12 : 8 } // Qt 6.8 sets x to 0
            width: ListView.view.width - 20
            item: modelData
            now: pane.now
        }
    }
    CalendarSection {
        id: reminders

        anchors { left: events.right; leftMargin: Theme.gap; right: parent.right }
        height: parent.height
        calendar: pane.calendar
        surroundings: pane.surroundings
        title: qsTranslate("notch", "Reminders")
        symbol: "checklist"
        status: pane.calendar.reminderStatus
        known: pane.calendar.remindersKnown
        allowTitle: qsTranslate("notch", "Allow Reminders")
        anchor: "Privacy_Reminders"
        emptyText: qsTranslate("notch", "All done")
        listName: "reminders"
        onAllowed: pane.calendar.requestReminderAccess()
        delegate: ReminderRow {
            required property calendarReminder modelData
            required property int index

            transform: Translate { x: Theme.mirrored ? 12 : 8 } // Qt 6.8 sets x to 0
            width: ListView.view.width - 20
            reminder: modelData
            now: pane.now
            tipBelow: y - ListView.view.contentY < height
            onFocusedChanged: {
                if (!focused)
                    return
                ListView.view.currentIndex = index // Once it is gone, the next one has the keyboard.
                ListView.view.positionViewAtIndex(index, ListView.Contain)
            }
            onCompleted: pane.calendar.complete(reminder)
        }
    }
}
