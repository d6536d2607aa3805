import QtQuick
import Kestrune.Views

/// A button with a text and, if `symbol` is given, a symbol before it.
ButtonBase {
    id: control

    property string symbol: ""
    property real symbolWidth: 0 // its own where none is given
    readonly property color ink: prominent ? look.accentText : look.text

    implicitHeight: 28
    implicitWidth: label.implicitWidth + 2 * look.controlPadding

    contentItem: Item {
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
                color: control.ink
            }
            PlainText {
                anchors.verticalCenter: parent.verticalCenter
                text: control.text
                font.pixelSize: control.look.fontSize
                font.weight: Font.Medium
                color: control.ink
                Accessible.ignored: true
            }
        }
    }
}
