import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A button of the form: a text, or a symbol alone, which gets its help as a tooltip.
T.AbstractButton {
    id: control

    property string symbol: ""
    property string help: text // Read out.
    property bool prominent: false

    implicitWidth: symbol !== "" ? 26 : label.implicitWidth + 28
    implicitHeight: symbol !== "" ? 26 : 28
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.window.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: help
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    background: Rectangle {
        radius: Theme.window.controlRadius
        color: control.prominent ? (control.down ? Qt.darker(Theme.window.accent, 1.15)
                                                 : control.hovered ? Qt.lighter(Theme.window.accent, 1.12)
                                                                   : Theme.window.accent)
             : control.down ? Theme.window.pressed
             : control.hovered ? Theme.window.hovered : Theme.window.control

        Rectangle {
            anchors { fill: parent; margins: -3 }
            visible: control.visualFocus
            radius: Theme.window.controlRadius + 3
            color: "transparent"
            border { width: 2; color: Theme.window.accent }
        }
    }
    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            visible: control.symbol !== ""
            name: control.symbol
            size: 15
            color: Theme.window.text
        }
        FormLabel {
            id: label

            anchors.centerIn: parent
            visible: control.symbol === ""
            text: control.text
            color: control.prominent ? Theme.window.accentText : Theme.window.text
            font.weight: control.prominent ? Font.DemiBold : Font.Normal
            Accessible.ignored: true
        }
    }

    Loader {
        active: (control.hovered || control.visualFocus) && control.symbol !== ""
        sourceComponent: HelpTip {
            text: control.help
            anchor: control
        }
    }
}
