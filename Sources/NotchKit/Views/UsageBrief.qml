import QtQuick
import Kestrune.Views

/// One assistant on Home: its name and a gauge for each limit, or why there is none.
Column {
    id: brief

    required property string title
    required property string hint
    required property var lines

    spacing: 4

    Text {
        width: parent.width
        text: brief.title
        font.pixelSize: 12
        color: Theme.text
        elide: Text.ElideRight
    }
    Text {
        width: parent.width
        visible: text !== ""
        text: brief.hint
        font.pixelSize: 11
        color: Theme.dim
        wrapMode: Text.WordWrap
    }
    Repeater {
        model: brief.hint === "" ? brief.lines : []

        Column {
            id: line

            required property var modelData

            width: brief.width
            spacing: 4

            Text {
                width: parent.width
                text: line.modelData.text
                font.pixelSize: 11
                color: Theme.dim
                elide: Text.ElideRight
            }
            UsageBar {
                width: parent.width
                fraction: line.modelData.fraction
            }
        }
    }
}
