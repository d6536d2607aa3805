import QtQuick
import Kestrune.Views

/// One file of the shelf: its type, its name, a button that takes it off. It can be chosen, and dragged out with all that
/// are chosen.
Tile {
    id: view

    required property shelfTile tile
    required property NotchSurroundings surroundings
    required property ShelfModel shelf

    readonly property bool hovered: mouse.containsMouse && !drag.active

    readonly property string description:
        tile.path + (tile.away ? " · " + qsTranslate("notch", "Cannot be reached now") : "")

    signal menuWanted(real x, real y, bool byKey)

    width: 104
    color: mouse.containsMouse || remove.hovered || drag.active ? Theme.hovered : Theme.group
    border { width: tile.chosen ? 2 : 1; color: tile.chosen ? Theme.accent : Theme.outline }
    activeFocusOnTab: true
    Accessible.role: Accessible.ListItem
    Accessible.name: tile.name
    Accessible.description: description
    Accessible.selectable: true
    Accessible.selected: tile.chosen
    Keys.onDeletePressed: shelf.removeWith(tile.url)
    Keys.onSpacePressed: event => shelf.choose(tile.url, event.modifiers ^ Qt.ControlModifier)
    Keys.onMenuPressed: menuWanted(width / 2, height / 2, true)

    FocusRing { visible: view.activeFocus }
    Item {
        anchors { fill: parent; margins: 8 }
        opacity: view.tile.away ? 0.4 : 1

        FileThumbnail {
            id: thumbnail

            surroundings: view.surroundings
            path: view.tile.symbol === "photo" && !view.tile.away ? view.tile.path : ""
        }
        Picture {
            anchors { fill: parent; bottomMargin: name.height + 4 }
            image: thumbnail.image
            radius: 6
        }
        Symbol {
            anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; bottom: name.top }
            visible: !thumbnail.isReady
            name: view.tile.symbol
            size: 40
            color: Theme.dim
        }
        PlainText {
            id: name

            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            height: 32
            text: view.tile.name
            font.pixelSize: Theme.smallFontSize
            color: Theme.text
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }
    MouseArea {
        id: mouse

        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        hoverEnabled: true
        preventStealing: true
        onPressed: event => {
            drag.urls = view.shelf.draggedWith(view.tile.url)
            drag.press(event.x, event.y)
        }
        onPositionChanged: event => drag.move(event.x, event.y)
        onClicked: event => {
            if (event.button === Qt.RightButton)
                view.menuWanted(event.x, event.y, false)
            else
                view.shelf.choose(view.tile.url, event.modifiers)
        }

        FileDrag {
            id: drag

            symbol: view.tile.symbol
            picture: thumbnail.image
        }
    }
    SymbolButton {
        id: remove

        anchors { right: parent.right; top: parent.top; margins: 2 }
        width: 24
        height: 24
        radius: 12
        tipBelow: true
        visible: mouse.containsMouse || hovered || view.activeFocus || activeFocus
        symbol: "xmark.circle.fill"
        //: Take a file off the shelf; the file itself stays where it is.
        help: qsTranslate("notch", "Remove")
        background: Rectangle {
            radius: remove.radius
            color: remove.down ? Theme.ground : Theme.scrim

            FocusRing { visible: remove.ringed }
        }
        onClicked: view.shelf.remove(view.tile.url)
    }
}
