import QtQuick
import Kestrune.Views

/// One button per offered tool, and the credit beside them. Tab stops once at the tools; there the arrows choose one to
/// press.
Item {
    id: row

    required property NotchPresentation presentation

    /// Small enough for all fourteen tools and the credit in one row.
    readonly property int buttonWidth: 32

    property int visited: -1 // The button that has the keyboard.

    /// A tool was pressed, also the one that shows already.
    signal chosen

    function visit(index) {
        buttons.itemAt((index + buttons.count) % buttons.count).forceActiveFocus(Qt.TabFocusReason)
    }

    function step(event, count) {
        event.accepted = visited >= 0
        if (event.accepted)
            visit(visited + (Theme.mirrored ? -count : count))
    }

    implicitHeight: 36

    Row {
        id: tools

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        spacing: 4
        Accessible.role: Accessible.PageTabList
        Keys.onLeftPressed: event => row.step(event, -1)
        Keys.onRightPressed: event => row.step(event, 1)
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
            if (event.accepted)
                row.visit(event.key === Qt.Key_Home ? 0 : -1)
        }

        Repeater {
            id: buttons

            model: row.presentation.toolRow

            ToolButton {
                required property toolEntry modelData
                required property int index

                implicitWidth: row.buttonWidth
                symbol: modelData.symbol
                help: modelData.title
                selected: index === row.presentation.selectedIndex
                focusPolicy: index === (row.visited >= 0 ? row.visited : Math.max(row.presentation.selectedIndex, 0))
                    ? Theme.focusPolicy : Qt.NoFocus
                onActiveFocusChanged: {
                    if (activeFocus)
                        row.visited = index
                    else if (row.visited === index)
                        row.visited = -1
                }
                onClicked: {
                    row.presentation.select(index)
                    row.chosen()
                }
            }
        }
    }

    Rectangle {
        readonly property real pitch: row.buttonWidth + tools.spacing

        x: Theme.mirrored ? tools.x + tools.width - width - slide.value * pitch : tools.x + slide.value * pitch
        y: tools.y
        width: row.buttonWidth
        height: 28
        radius: Theme.controlRadius
        color: Theme.highlighted
        visible: row.presentation.selectedIndex >= 0
        z: -1

        SpringValue {
            id: slide

            target: Math.max(row.presentation.selectedIndex, 0)
            response: 0.2
            dampingFraction: 0.85
            precision: 0.002
        }
    }

    ButtonBase {
        id: credit

        anchors { right: parent.right; rightMargin: -8; verticalCenter: parent.verticalCenter }
        visible: text !== ""
        width: Math.min(implicitWidth, row.width - tools.width - 8)
        implicitWidth: line.implicitWidth
        implicitHeight: 28
        plain: true
        text: row.presentation.creditTitle
        Accessible.role: Accessible.Link
        onClicked: row.presentation.openCredit()
        contentItem: PlainText {
            id: line

            leftPadding: 8
            rightPadding: 8
            text: credit.text
            font.pixelSize: Theme.smallFontSize
            font.underline: credit.hovered
            color: credit.hovered ? Theme.text : Theme.dim
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
