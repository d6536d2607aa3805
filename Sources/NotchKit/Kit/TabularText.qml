import QtQuick
import Kestrune.Views

/// A text whose digits all take the same width, so that a running time does not jitter.
Row {
    id: line

    required property string text
    property real size: 13
    property int weight: Font.Normal
    property color color: Theme.text

    LayoutMirroring.enabled: false // The digits of a number are not turned around.
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    TextMetrics {
        id: metrics

        readonly property real digitWidth: Math.ceil(Format.digitWidth(font))

        font.pixelSize: line.size
        font.weight: line.weight
    }

    Repeater {
        model: line.text.length

        PlainText {
            required property int index

            readonly property string character: Format.digits(line.text.charAt(index))

            width: character !== ":" ? metrics.digitWidth : implicitWidth
            text: character
            font: metrics.font
            color: line.color
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
