import QtQuick
import Kestrune.Views

/// One assistant's card: its heading, then what it has to show, or how to connect it, or why there is nothing.
Tile {
    id: card

    required property string symbol
    required property string title
    required property bool on
    required property string explanation ///< While it is off.
    required property string hint ///< While it has nothing to show.
    default property alias content: body.data

    signal connect

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    SectionLabel {
        id: heading

        anchors.leftMargin: 12
        y: 12
        symbol: card.symbol
        title: card.title
    }

    Column {
        id: body

        anchors { left: parent.left; right: parent.right; top: heading.bottom; margins: 12 }
        spacing: 12
        visible: card.on && card.hint === ""
    }

    Item {
        anchors { left: parent.left; right: parent.right; top: heading.bottom; bottom: parent.bottom; margins: 20 }
        visible: !body.visible

        PlainText {
            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: button.top; bottomMargin: 8 }
            text: card.on ? card.hint : card.explanation
            font.pixelSize: Theme.fontSize
            lineHeight: 1.2
            color: Theme.quiet
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.WordWrap
        }
        TextButton {
            id: button

            anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
            visible: !card.on
            //: A button: begin to read the usage of a program.
            text: qsTranslate("notch", "Connect")
            prominent: true
            onClicked: card.connect()
        }
    }
}
