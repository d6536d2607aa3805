import QtQuick
import Kestrune.Views

/// One limit: what it is and how much of it is left or used, the gauge, when it begins anew.
///
///   | title             text |
///   | ====-----------------  |
///   | resets                 |
Column {
    id: limit

    required property usageLine line

    spacing: 6

    Item {
        width: parent.width
        height: value.implicitHeight

        PlainText {
            anchors { left: parent.left; right: value.left; rightMargin: 8 }
            text: limit.line.title
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
        PlainText {
            id: value

            anchors.right: parent.right
            width: Math.min(implicitWidth, parent.width)
            text: limit.line.text
            font.pixelSize: Theme.fontSize
            color: Theme.text
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
    }
    UsageBar {
        width: parent.width
        fraction: limit.line.fraction
    }
    PlainText {
        width: parent.width
        visible: text !== ""
        text: limit.line.resets
        font.pixelSize: Theme.smallFontSize
        color: Theme.dim
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
    }
}
