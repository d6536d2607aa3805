import QtQuick
import Kestrune.Views

/// What is left of today.
HomeBlock {
    id: block

    required property CalendarModel model
    readonly property CalendarModel calendar: model
    readonly property bool allowed: calendar.status === CalendarModel.Full
    readonly property date now: shown ? surroundings.now : new Date(0)

    title: qsTranslate("notch", "Today's events")

    TodaysEvents {
        id: today

        model: block.calendar
        surroundings: block.surroundings
    }

    Column {
        width: parent.width
        spacing: 8

        SectionLabel {
            title: block.title
            symbol: "calendar"
        }
        PlainText {
            width: parent.width
            visible: block.allowed && block.calendar.eventsKnown && today.events.length === 0
            text: qsTranslate("notch", "Nothing else today.")
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
        AccessButton {
            visible: block.calendar.eventsKnown && !block.allowed
            surroundings: block.surroundings
            status: block.calendar.status
            allowTitle: qsTranslate("notch", "Allow Calendar")
            anchor: "Privacy_Calendars"
            onAllowed: block.calendar.requestAccess()
        }
        Repeater {
            model: block.allowed ? today.events.slice(0, 3) : []

            EventRow {
                required property calendarItem modelData

                width: parent.width
                item: modelData
                now: block.now
            }
        }
    }
}
