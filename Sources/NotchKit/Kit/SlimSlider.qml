import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A thin horizontal slider. With the keyboard, the arrows move it by `stepSize`.
T.Slider {
    id: control

    /// Shown as a tooltip and read out as the name.
    required property string help

    implicitWidth: 160
    implicitHeight: 28
    leftPadding: 2
    rightPadding: 2
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.Slider
    Accessible.name: help

    background: Item {
        Rectangle {
            x: control.leftPadding
            width: control.availableWidth
            height: 4
            anchors.verticalCenter: parent.verticalCenter
            radius: 2
            color: control.hovered ? Theme.highlighted : Theme.hovered

            Rectangle {
                anchors.left: parent.left
                width: control.handle.width / 2 + control.position * (control.availableWidth - control.handle.width)
                height: parent.height
                radius: parent.radius
                color: Theme.accent
            }
        }
    }
    handle: Rectangle {
        x: control.leftPadding + control.visualPosition * (control.availableWidth - width)
        anchors.verticalCenter: parent.verticalCenter
        width: 14
        height: 14
        radius: 7
        color: control.pressed ? Qt.darker(Theme.handle, 1.14) : control.hovered ? "white" : Theme.handle
        border.width: control.visualFocus ? 2 : 0
        border.color: Theme.accent
    }

    Loader {
        active: control.hovered && !control.pressed
        sourceComponent: HelpTip {
            text: control.help
            anchor: control
        }
    }
}
