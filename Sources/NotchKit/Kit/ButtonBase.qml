import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// What every button shares: its states, its help, its keys. Its `contentItem` draws on top.
T.AbstractButton {
    id: control

    /// Read out as the name, and a tooltip where it is not the text.
    property string help: text
    property Look look: Theme
    property bool active: false
    property bool plain: false // Only seen under the pointer.
    property bool prominent: false
    property bool tipBelow: false
    property Item tipAnchor: control // what the tip stands at
    property real radius: look.controlRadius
    // What a click leaves the keyboard out of has it by key, or from what had it before.
    property bool ringed: visualFocus || activeFocus && look.focusPolicy === Qt.TabFocus

    focusPolicy: look.focusPolicy
    hoverEnabled: true
    opacity: enabled ? 1 : look.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: help
    Accessible.checked: active
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    background: Rectangle {
        radius: control.radius
        color: control.prominent ? (control.down ? Qt.darker(control.look.accent, 1.15)
                                    : control.hovered ? Qt.lighter(control.look.accent, 1.12) : control.look.accent)
             : control.down ? control.look.pressed
             : control.active ? control.look.highlighted
             : control.hovered ? control.look.hovered
             : control.plain ? "transparent" : control.look.control

        FocusRing {
            visible: control.ringed
            look: control.look
            gap: control.prominent ? 4 : look.focusGap // It would not be seen on its own colour.
        }
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
