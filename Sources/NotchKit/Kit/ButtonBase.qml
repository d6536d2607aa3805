import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// What every button of the notch shares: its states, its help, its keys. `content` draws on top.
T.AbstractButton {
    id: control

    /// Shown as a tooltip and read out as the name.
    required property string help
    property bool active: false
    property bool plain: false
    property bool tipBelow: false
    property Item tipAnchor: control // what the tip stands at
    property real radius: Theme.controlRadius

    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: help
    Accessible.checked: active
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    background: Rectangle {
        radius: control.radius
        color: control.down ? Theme.pressed
             : control.active ? Theme.highlighted
             : control.hovered ? Theme.hovered
             : control.plain ? "transparent" : Theme.control
        border.width: control.visualFocus ? 2 : 0
        border.color: Theme.accent
    }

    Loader {
        active: (control.hovered || control.visualFocus) && control.help !== control.text
        sourceComponent: HelpTip {
            text: control.help
            below: control.tipBelow
            anchor: control.tipAnchor
        }
    }
}
