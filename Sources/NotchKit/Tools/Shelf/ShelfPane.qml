import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// The shelf: its files in a row that scrolls, and what can be done with all of them.
Pane {
    id: pane

    required property ShelfModel model
    readonly property ShelfModel shelf: model

    onPresented: {
        tip.tile = null
        list.positionViewAtEnd()
    }

    Keys.onPressed: event => {
        if (event.matches(StandardKey.SelectAll))
            shelf.chooseAll()
        else
            return
        event.accepted = true
    }

    // A click beside the tiles.
    TapHandler { onTapped: pane.shelf.chooseNone() }

    PaneMessage {
        anchors.fill: parent
        visible: rows.count === 0
        symbol: pane.screenModel.dropTargeted ? "tray.and.arrow.down.fill" : "tray.and.arrow.down"
        text: qsTranslate("notch", "Drop files here to keep them handy.\nDrag them out anywhere, or AirDrop them.")
    }
    Rectangle {
        anchors { fill: parent; topMargin: 4; bottomMargin: rows.count > 0 ? actions.height + 8 : 4 }
        visible: pane.screenModel.dropTargeted
        radius: Theme.radius
        color: "transparent"
        border { width: 1; color: Theme.accent }
    }

    ListView {
        id: list

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: actions.top; margins: 8 }
        visible: rows.count > 0
        orientation: ListView.Horizontal
        spacing: 8
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        // Where they leave room, the tiles stand in the middle.
        leftMargin: Math.max(0, (width - contentWidth) / 2)
        rightMargin: leftMargin
        T.ScrollBar.horizontal: ScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("notch", "Shelf")

        model: KeyedListModel {
            id: rows

            source: pane.shelf
            list: "tiles"
            key: "url"
            onCountChanged: Qt.callLater(list.positionViewAtEnd)
        }
        delegate: ShelfTile {
            required property shelfTile modelData
            required property int index

            height: ListView.view.height - 12
            tile: modelData
            surroundings: pane.surroundings
            shelf: pane.shelf
            onHoveredChanged: if (hovered) tip.tile = this; else if (tip.tile === this) tip.tile = null
            onActiveFocusChanged: if (activeFocus) list.currentIndex = index
            onMenuWanted: (x, y, byKey) => {
                const at = mapToItem(pane, x, y)
                menu.url = tile.url
                menu.openAt(at.x, at.y, byKey)
            }
        }
        displaced: Transition { NumberAnimation { properties: "x"; duration: 160; easing.type: Easing.OutCubic } }

        FocusReveal { flickable: list }
    }

    Row {
        id: actions

        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
        visible: rows.count > 0
        spacing: 8

        TextButton {
            symbol: "airplayaudio"
            text: qsTranslate("notch", "AirDrop")
            help: pane.surroundings.airDrop.notice === "" && pane.surroundings.airDrop.lack || text
            onClicked: {
                const at = mapToItem(pane, Theme.mirrored ? width : 0, 0)
                devices.placeAt(at.x, at.y)
                devices.request = pane.shelf.airDrop()
            }
        }
        TextButton {
            symbol: "folder"
            text: ""
            help: qsTranslate("notch", "Show in Finder")
            onClicked: pane.shelf.reveal()
        }
        TextButton {
            symbol: "trash"
            //: A button: take all files off the shelf.
            text: qsTranslate("notch", "Clear")
            onClicked: pane.shelf.clear()
        }
    }

    Loader {
        id: tip

        property ShelfTile tile: null

        active: tile !== null
        z: 2
        sourceComponent: HelpTip {
            anchor: tip.tile
            text: tip.tile?.description ?? ""
            below: true
        }
    }

    AirDropMenu {
        id: devices

        airDrop: pane.surroundings.airDrop
        screenModel: pane.screenModel
    }
    AirDropNotice {
        anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: list.verticalCenter }
        menu: devices
    }
    ContextMenu {
        id: menu

        property url url

        screenModel: pane.screenModel
        entries: [qsTranslate("notch", "Remove")]
        onChosen: pane.shelf.removeWith(url)
    }
}
