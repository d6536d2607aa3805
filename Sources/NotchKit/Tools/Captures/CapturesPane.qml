import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// The newest screenshots as a grid, with what can be done with them.
Pane {
    id: pane

    required property CapturesModel model
    readonly property CapturesModel captures: model

    onPresented: grid.positionViewAtBeginning()

    PaneMessage {
        anchors.fill: parent
        visible: pane.captures.needsAccess
        symbol: "camera.viewfinder"
        //: %1 is the name of the program.
        text: Format.namingHost(qsTranslate("notch", "Allow %1 to read your screenshots folder in\nSystem Settings › Privacy & Security › Files and Folders."))
        actionTitle: qsTranslate("notch", "Open Settings")
        onAction: pane.captures.openPrivacySettings()
    }
    PaneMessage {
        anchors.fill: parent
        visible: !pane.captures.needsAccess && rows.count === 0
        symbol: "camera.viewfinder"
        text: qsTranslate("notch", "Take a screenshot (⇧⌘4) and it appears here.\nDrag it into any app, or right-click for more.")
    }

    GridView {
        id: grid

        readonly property int columns: 5

        anchors { fill: parent; bottomMargin: hint.height + Theme.gap }
        visible: !pane.captures.needsAccess && rows.count > 0
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        cellWidth: Math.floor((width - 4) / columns)
        cellHeight: Math.round((height + Theme.gap) / 2)
        T.ScrollBar.vertical: ScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("notch", "Screenshots")

        model: KeyedListModel {
            id: rows

            source: pane.captures
            list: "items"
        }
        delegate: Item {
            required property captureItem modelData

            width: grid.cellWidth
            height: grid.cellHeight

            CaptureThumb {
                anchors { fill: parent; rightMargin: Theme.gap; bottomMargin: Theme.gap }
                item: parent.modelData
                surroundings: pane.surroundings
                thumbnail: pane.captures.thumbnails[item.id]
                onActiveFocusChanged: if (activeFocus) grid.positionViewAtIndex(rows.indexOf(item), GridView.Contain)
                onClicked: {
                    pane.captures.open(item.id)
                    pane.surroundings.collapse()
                }
                onMenuWanted: (x, y, byKey) => {
                    const at = mapToItem(pane, x, y)
                    menu.item = item
                    menu.openAt(at.x, at.y, byKey)
                }
            }
        }
        move: Transition { NumberAnimation { properties: "x,y"; duration: 160; easing.type: Easing.OutCubic } }
        displaced: move
    }

    PlainText {
        id: hint

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        visible: grid.visible
        text: pane.captures.fault || qsTranslate("notch", "Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.")
        font.pixelSize: Theme.smallFontSize
        color: Theme.dim
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
    }

    AirDropMenu {
        id: devices

        airDrop: pane.surroundings.airDrop
        screenModel: pane.screenModel
    }
    AirDropNotice {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 24 }
        menu: devices
    }
    ContextMenu {
        id: menu

        property captureItem item

        screenModel: pane.screenModel
        readonly property var actions: [ // Functions.
            () => pane.captures.reveal(item.id),
            () => devices.send([item.url], menu.x, menu.y),
            () => pane.presentation.addToShelf([item.url]),
            () => pane.captures.copy(item.id),
            () => pane.captures.trash(item.id),
            () => {
                pane.captures.edit(item.id)
                pane.surroundings.collapse()
            }
        ]

        entries: [
            qsTranslate("notch", "Show in Finder"),
            qsTranslate("notch", "AirDrop"),
            qsTranslate("notch", "Add to Shelf"),
            //: In the menu of a screenshot: copy the picture.
            qsTranslate("notch", "Copy"),
            qsTranslate("notch", "Move to Trash")
        ].concat(pane.captures.canEdit ? [qsTranslate("notch", "Edit")] : [])
        onChosen: index => actions[index]()
    }
}
