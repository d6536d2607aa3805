import QtQuick
import Kestrune.Views

/// One button per offered tool, and the credit beside them.
Item {
    id: row

    required property NotchPresentation presentation

    /// Small enough for all fourteen tools and the credit in one row.
    readonly property int buttonWidth: 32

    implicitHeight: 36

    Row {
        id: tools

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        spacing: 4
        Accessible.role: Accessible.PageTabList

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
                onClicked: row.presentation.select(index)
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
