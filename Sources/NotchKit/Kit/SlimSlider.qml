import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A thin horizontal slider. With the keyboard, the arrows move it by `stepSize`.
T.Slider {
    id: control

    /// Shown as a tooltip, if it is given, and read out as the name.
    property string help: ""
    property Look look: Theme

    implicitWidth: 160
    implicitHeight: 28
    focusPolicy: look.focusPolicy
    hoverEnabled: true
    opacity: enabled ? 1 : look.disabledOpacity
    Accessible.role: Accessible.Slider
    Accessible.name: help

    background: Item {
        Rectangle {
            width: parent.width
            height: 4
            anchors.verticalCenter: parent.verticalCenter
            radius: 2
            color: control.hovered ? control.look.highlighted : control.look.groove

            Rectangle {
                anchors.left: parent.left
                width: control.handle.width / 2 + control.position * (control.availableWidth - control.handle.width)
                height: parent.height
                radius: parent.radius
                color: control.look.accent
            }
        }
    }
    handle: Rectangle {
        x: control.visualPosition * (control.availableWidth - width)
        anchors.verticalCenter: parent.verticalCenter
        width: control.look.handleSize
        height: width
        radius: width / 2
        color: control.pressed ? Qt.darker(control.look.handle, 1.14) : control.hovered ? "white" : control.look.handle
        border { width: 1; color: control.look.handleOutline }

        FocusRing {
            visible: control.visualFocus
            look: control.look
            gap: 3
        }
    }

    Loader {
        active: control.hovered && !control.pressed && control.help !== ""
        sourceComponent: HelpTip {
            text: control.help
            anchor: control
        }
    }
}
