import QtQuick
import Kestrune.Views

/// The empty or permission state of a pane: a symbol, a text and, if it has a title, a button.
Item {
    id: message

    required property string symbol
    required property string text
    property string actionTitle: ""

    signal action

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width, 480)
        spacing: 12

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: message.symbol
            size: 26
            color: Theme.dim
        }
        PlainText {
            width: parent.width
            text: message.text
            font.pixelSize: Theme.largeFontSize
            color: Theme.quiet
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            lineHeight: 1.2
        }
        TextButton {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: message.actionTitle !== ""
            text: message.actionTitle
            prominent: true
            onClicked: message.action()
        }
    }
}
