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
    opacity: enabled ? 1 : FormTheme.disabledOpacity
    Accessible.role: Accessible.Button
    Accessible.name: help
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    background: Rectangle {
        radius: FormTheme.controlRadius
        color: control.prominent ? (control.down ? Qt.darker(FormTheme.accent, 1.15)
                                                 : control.hovered ? Qt.lighter(FormTheme.accent, 1.12)
                                                                   : FormTheme.accent)
             : control.down ? FormTheme.pressed
             : control.hovered ? FormTheme.hovered : FormTheme.control

        Rectangle {
            anchors { fill: parent; margins: -3 }
            visible: control.visualFocus
            radius: FormTheme.controlRadius + 3
            color: "transparent"
            border { width: 2; color: FormTheme.accent }
        }
    }
    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            visible: control.symbol !== ""
            name: control.symbol
            size: 15
            color: FormTheme.text
        }
        FormLabel {
            id: label

            anchors.centerIn: parent
            visible: control.symbol === ""
            text: control.text
            color: control.prominent ? FormTheme.accentText : FormTheme.text
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
