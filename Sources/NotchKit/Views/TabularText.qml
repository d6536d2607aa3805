import QtQuick
import Kestrune.Views

/// A text whose digits all take the same width, so that a running time does not jitter.
Row {
    id: line

    required property string text
    property real size: 13
    property int weight: Font.Normal
    property color color: Theme.text

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    TextMetrics {
        id: widest

        font.pixelSize: line.size
        font.weight: line.weight
        text: "0"
    }

    Repeater {
        model: line.text.length

        Text {
            required property int index

            readonly property string character: line.text.charAt(index)

            width: character >= "0" && character <= "9" ? Math.ceil(widest.advanceWidth) : implicitWidth
            text: character
            font: widest.font
            color: line.color
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
