import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A row with a switch; a click anywhere in it turns the switch. What it shows is only ever what is stored.
T.AbstractButton {
    id: control

    required property string title
    required property bool on
    property string symbol: ""
    property bool first: false

    /// The user wants it so.
    signal modified(bool on)

    width: parent?.width ?? 0
    implicitHeight: Theme.window.rowHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.role: Accessible.CheckBox
    Accessible.name: title
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onToggleAction: control.modified(!control.on)
    onClicked: control.modified(!control.on)

    contentItem: FormRow {
        title: control.title
        symbol: control.symbol
        first: control.first

        Rectangle {
            id: track

            width: 38
            height: 22
            radius: height / 2
            opacity: control.enabled ? 1 : Theme.window.disabledOpacity
            color: control.on ? (control.hovered ? Qt.lighter(Theme.window.accent, 1.1) : Theme.window.accent)
                              : (control.hovered ? Theme.window.pressed : Theme.window.highlighted)

            Rectangle {
                anchors { fill: parent; margins: -3 }
                visible: control.visualFocus
                radius: height / 2
                color: "transparent"
                border { width: 2; color: Theme.window.accent }
            }
            Rectangle {
                readonly property real wide: control.down ? 21 : 18

                x: control.on !== Theme.mirrored ? track.width - width - 2 : 2
                y: 2
                width: wide
                height: 18
                radius: 9
                color: Theme.window.handle
                border { width: 1; color: Theme.window.handleOutline }

                Behavior on x { NumberAnimation { duration: 110; easing.type: Easing.OutCubic } }
            }
        }
    }
}
