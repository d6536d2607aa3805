import QtQuick
import Kestrune.Views

/// A button with a text and, if `symbol` is given, a symbol before it.
ButtonBase {
    id: control

    property string symbol: ""
    property bool prominent: false
    property real symbolWidth: 0 // its own where none is given

    help: text
    implicitHeight: 28
    implicitWidth: label.implicitWidth + 24

    Binding {
        target: control.background
        property: "color"
        when: control.prominent && !control.down
        value: control.hovered ? Qt.lighter(Theme.accent, 1.12) : Theme.accent
    }

    contentItem: Item {
        implicitWidth: label.implicitWidth
        implicitHeight: label.implicitHeight

        Row {
            id: label

            anchors.centerIn: parent
            spacing: 6

            Symbol {
                visible: control.symbol !== ""
                name: control.symbol
                size: 14
                width: control.symbolWidth > 0 ? control.symbolWidth : implicitWidth
                anchors.verticalCenter: parent.verticalCenter
                color: control.prominent ? Theme.accentText : Theme.text
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: control.text
                font.pixelSize: Theme.fontSize
                font.weight: Font.Medium
                color: control.prominent ? Theme.accentText : Theme.text
                Accessible.ignored: true
            }
        }
    }
}
