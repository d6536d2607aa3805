import QtQuick
import Kestrune.Views

/// One screenshot as a small picture; under the pointer it also tells its name and age.
ButtonBase {
    id: thumb

    required property captureItem item
    required property NotchSurroundings surroundings
    property var thumbnail // A QImage, or undefined.
    property bool captioned: true

    /// The right button, or the keyboard's menu key, at a place within the picture.
    signal menuWanted(real x, real y, bool byKey)

    help: item.name
    text: item.name
    radius: 10
    Keys.onMenuPressed: menuWanted(width / 2, height / 2, true)

    Symbol {
        anchors.centerIn: parent
        visible: thumb.thumbnail === undefined
        name: "photo"
        size: Math.min(24, thumb.height / 2)
        color: Theme.dim
    }
    Picture {
        anchors.fill: parent
        image: thumb.thumbnail
        radius: thumb.radius
    }
    Loader {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        active: thumb.captioned && (area.containsMouse || thumb.ringed)
        sourceComponent: Item {
            height: 38
            clip: true

            Rectangle {
                anchors { fill: parent; topMargin: -thumb.radius }
                radius: thumb.radius
                color: Theme.scrim
            }
            Column {
                anchors { left: parent.left; right: parent.right; margins: 8; verticalCenter: parent.verticalCenter }

                PlainText {
                    width: parent.width
                    text: thumb.item.name
                    font.pixelSize: Theme.tinyFontSize
                    color: Theme.text
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideMiddle
                    maximumLineCount: 1
                    Accessible.ignored: true
                }
                PlainText {
                    width: parent.width
                    text: Format.relativeTime(thumb.item.date, thumb.surroundings.now)
                    font.pixelSize: Theme.tinyFontSize
                    color: Theme.dim
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
            }
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: thumb.radius
        color: area.pressed ? Theme.pressed : "transparent"
        border { width: 1; color: area.containsMouse ? Theme.dim : Theme.hovered }

        FocusRing { visible: thumb.ringed }
    }
    MouseArea {
        id: area

        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        hoverEnabled: true
        preventStealing: true // a drag takes the picture along; the wheel scrolls
        onPressed: mouse => drag.press(mouse.x, mouse.y)
        onPositionChanged: mouse => drag.move(mouse.x, mouse.y)
        onClicked: mouse => {
            if (mouse.button === Qt.RightButton)
                thumb.menuWanted(mouse.x, mouse.y, false)
            else
                thumb.clicked()
        }

        FileDrag {
            id: drag

            urls: [thumb.item.url]
            symbol: "photo"
            picture: thumb.thumbnail
        }
    }
}
