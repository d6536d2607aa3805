import QtQuick
import Kestrune.Views

/// One item of the clipboard history on a single line.
ButtonBase {
    id: line

    required property clipboardItem item
    property bool copied: false

    help: item.preview
    text: item.preview
    plain: true
    radius: 6
    implicitHeight: 24

    Symbol {
        id: kind

        anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
        visible: !picture.visible
        width: 16
        name: line.item.symbol
        size: 13
        color: Theme.dim
    }
    Picture {
        id: picture

        anchors.fill: kind
        visible: line.item.hasThumbnail
        image: line.item.thumbnail
        radius: 3
    }
    PlainText {
        anchors {
            left: kind.right
            leftMargin: 6
            right: parent.right
            rightMargin: 4
            verticalCenter: parent.verticalCenter
        }
        text: line.copied ? qsTranslate("notch", "Copied") : line.item.preview
        font.pixelSize: Theme.fontSize
        color: line.copied ? Theme.dim : line.item.isLink ? Theme.accent : Theme.text
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
}
