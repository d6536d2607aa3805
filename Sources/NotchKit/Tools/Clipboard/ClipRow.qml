import QtQuick
import Kestrune.Views

/// One item of the clipboard history.
///
///   | picture or symbol | text               pin  age |
ButtonBase {
    id: row

    required property clipboardItem item
    required property NotchSurroundings surroundings
    property bool copied: false
    property bool current: false
    property bool shown: true

    /// The right button at a place within the row.
    signal menuWanted(real x, real y)

    help: item.preview
    text: item.preview
    //: Said of an entry of the clipboard history that is kept until the user deletes it.
    Accessible.description: item.pinned ? qsTranslate("notch", "Pinned") : ""
    plain: true
    focusPolicy: Qt.NoFocus
    implicitHeight: 42
    background: Rectangle {
        radius: Theme.controlRadius
        color: row.down ? Theme.pressed : row.hovered ? Theme.hovered : row.current ? Theme.control : "transparent"
        border.width: row.current ? 1 : 0
        border.color: Theme.highlighted
    }

    Rectangle {
        id: square

        anchors { left: parent.left; leftMargin: 8; verticalCenter: parent.verticalCenter }
        width: 30
        height: 30
        radius: 6
        color: picture.visible ? "transparent" : Theme.control

        Symbol {
            anchors.centerIn: parent
            visible: !picture.visible
            name: row.item.symbol
            size: 14
            color: Theme.dim
        }
        Picture {
            id: picture

            anchors.fill: parent
            visible: row.item.hasThumbnail
            image: row.item.thumbnail
            radius: 6
        }
    }
    PlainText {
        anchors {
            left: square.right
            leftMargin: 10
            right: pin.visible ? pin.left : age.left
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        text: row.item.preview
        font.pixelSize: Theme.fontSize
        color: row.item.isLink ? Theme.accent : Theme.text
        horizontalAlignment: Text.AlignLeft
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    Symbol {
        id: pin

        anchors { right: age.left; rightMargin: age.text === "" ? 0 : 6; verticalCenter: parent.verticalCenter }
        visible: row.item.pinned
        name: "pin.fill"
        size: 12
        color: Theme.dim
    }
    PlainText {
        id: age

        anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        //: Shown in the place of what was just copied again.
        text: row.copied ? qsTranslate("notch", "Copied")
            : row.shown ? Format.relativeTime(row.item.date, row.surroundings.now) : ""
        font.pixelSize: Theme.tinyFontSize
        color: Theme.dim
        Accessible.ignored: true
    }
    // No TapHandler: with one the button itself would take the right button for a click.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: event => row.menuWanted(event.x, event.y)
    }
}
