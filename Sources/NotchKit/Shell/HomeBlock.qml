import QtQuick
import Kestrune.Views

/// One block of the Home pane; a click opens its tool, whose `model` it is given where there is one.
Tile {
    id: block

    required property NotchSurroundings surroundings
    required property NotchScreenModel screenModel
    required property NotchPresentation presentation
    property bool shown: true

    /// The raw value of the tool that a click opens while it is offered, empty for none, and the block's name.
    property string tool: ""
    property string title: ""
    default property alias content: body.data

    /// Home is on screen from now on: what was only passing is over.
    signal presented

    readonly property bool opens: presentation.offeredTools.indexOf(tool) >= 0

    implicitHeight: body.childrenRect.height + 24
    color: opener.pressed ? Theme.pressed : opener.containsMouse ? Theme.hovered : Theme.group
    activeFocusOnTab: opens
    Accessible.role: opens ? Accessible.Button : Accessible.Grouping
    Accessible.name: title
    Accessible.onPressAction: presentation.selectTool(tool)
    Keys.onReturnPressed: presentation.selectTool(tool)
    Keys.onSpacePressed: presentation.selectTool(tool)

    FocusRing { visible: block.activeFocus }
    MouseArea {
        id: opener

        anchors.fill: parent
        enabled: block.opens
        hoverEnabled: enabled
        cursorShape: enabled ? Qt.PointingHandCursor : Qt.ArrowCursor
        onClicked: block.presentation.selectTool(block.tool)
    }

    Item {
        id: body

        x: 12
        y: 12
        width: block.width - 24
        height: childrenRect.height
    }
}
