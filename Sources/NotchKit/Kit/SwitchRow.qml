import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A row with a switch; a click anywhere in it turns the switch. What it shows is only ever what is stored.
T.AbstractButton {
    id: control

    required property string title
    required property bool on
    property string note: ""
    property string symbol: ""
    property bool first: false
    property Look look: Theme.window

    /// The user wants it so.
    signal modified(bool on)

    width: parent?.width ?? 0
    implicitHeight: implicitContentHeight
    focusPolicy: look.focusPolicy
    hoverEnabled: true
    Accessible.role: Accessible.CheckBox
    Accessible.name: title
    Accessible.description: note
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.onToggleAction: control.modified(!control.on)
    onClicked: control.modified(!control.on)

    contentItem: FormRow {
        look: control.look
        title: control.title
        note: control.note
        symbol: control.symbol
        first: control.first

        Rectangle {
            id: track

            width: 38
            height: 22
            radius: height / 2
            opacity: control.enabled ? 1 : control.look.disabledOpacity
            color: control.on ? (control.hovered ? Qt.lighter(control.look.accent, 1.1) : control.look.accent)
                              : (control.hovered ? control.look.pressed : control.look.highlighted)

            FocusRing {
                visible: control.visualFocus
                look: control.look
                gap: 3
            }
            Rectangle {
                readonly property real wide: control.down ? 21 : 18

                x: control.on !== Theme.mirrored ? track.width - width - 2 : 2
                y: 2
                width: wide
                height: 18
                radius: 9
                color: "white"
                border { width: 1; color: Qt.rgba(0, 0, 0, 0.12) }

                Behavior on x { NumberAnimation { duration: 110; easing.type: Easing.OutCubic } }
            }
        }
    }
}
