import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// One half of the calendar's pane: a heading, and below it the rows, a word where there are none, or the
/// button that asks for access.
Tile {
    id: section

    required property CalendarModel calendar
    required property NotchSurroundings surroundings
    required property string title
    required property string symbol
    required property int status // A CalendarModel.Access.
    required property bool known
    required property string allowTitle
    required property string anchor
    required property string emptyText
    required property string listName
    property string notice // A line at the bottom; empty for none.
    property alias delegate: list.delegate

    signal allowed

    function present() {
        list.positionViewAtBeginning()
    }

    SectionLabel {
        id: label

        anchors.leftMargin: 12
        y: 12
        title: section.title
        symbol: section.symbol
    }
    ListView {
        id: list

        anchors { fill: parent; topMargin: 36; leftMargin: 4; rightMargin: 4; bottomMargin: notice.visible ? 33 : 8 }
        visible: section.status === CalendarModel.Full
        clip: true
        spacing: 4
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        T.ScrollBar.vertical: ScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: section.title

        model: KeyedListModel {
            id: rows

            source: section.calendar
            list: section.listName
        }
        displaced: Transition { NumberAnimation { properties: "y"; duration: 160; easing.type: Easing.OutCubic } }
    }
    PlainText {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12; topMargin: 40 }
        visible: section.known && section.status === CalendarModel.Full && rows.count === 0
        text: section.emptyText
        font.pixelSize: Theme.fontSize
        color: Theme.dim
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.WordWrap
    }
    PlainText {
        id: notice

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 12; bottomMargin: 9 }
        visible: section.status === CalendarModel.Full && text !== ""
        text: section.notice
        font.pixelSize: Theme.smallFontSize
        color: Theme.dim
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        maximumLineCount: 1

        Rectangle {
            y: -height - 8
            width: parent.width
            height: 1
            color: Theme.divider
        }
        HoverHandler { id: pointer }
        Loader {
            active: pointer.hovered && notice.truncated
            sourceComponent: HelpTip {
                text: notice.text
                anchor: notice
            }
        }
    }
    AccessButton {
        anchors.leftMargin: 12
        y: 42
        visible: section.known && section.status !== CalendarModel.Full
        surroundings: section.surroundings
        status: section.status
        allowTitle: section.allowTitle
        anchor: section.anchor
        onAllowed: section.allowed()
    }
}
