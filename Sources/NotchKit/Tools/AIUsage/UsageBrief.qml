import QtQuick
import Kestrune.Views

/// One assistant on Home: a gauge for each limit, the first under its name, or why there is none.
Column {
    id: brief

    required property string title
    required property string hint
    required property list<usageLine> lines

    spacing: 8

    Column {
        width: parent.width
        spacing: 2
        visible: brief.hint !== ""

        PlainText {
            width: parent.width
            text: brief.title
            font.pixelSize: Theme.fontSize
            color: Theme.text
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
        PlainText {
            width: parent.width
            text: brief.hint
            font.pixelSize: Theme.smallFontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
            maximumLineCount: 3
            elide: Text.ElideRight
        }
    }

    Repeater {
        model: brief.hint === "" ? brief.lines : []

        Column {
            id: line

            required property usageLine modelData
            required property int index

            width: brief.width
            spacing: 4

            Item {
                width: parent.width
                height: value.implicitHeight

                PlainText {
                    anchors { left: parent.left; right: value.left; rightMargin: 8 }
                    text: line.index === 0 ? brief.title : line.modelData.title
                    font.pixelSize: Theme.fontSize
                    color: line.index === 0 ? Theme.text : Theme.dim
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideRight
                }
                PlainText {
                    id: value

                    anchors.right: parent.right
                    text: line.modelData.brief
                    font.pixelSize: Theme.fontSize
                    color: Theme.dim
                }
            }
            UsageBar {
                width: parent.width
                fraction: line.modelData.fraction
            }
            PlainText {
                width: parent.width
                visible: line.modelData.renewed
                text: line.modelData.resets
                font.pixelSize: Theme.smallFontSize
                color: Theme.dim
                horizontalAlignment: Text.AlignLeft
                elide: Text.ElideRight
            }
        }
    }
}
