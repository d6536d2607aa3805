import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// The clipboard history: filters, search, clear; below, the items, the pinned ones first. With the keyboard,
/// typing searches, the arrows choose, Return copies, Control+P pins and Delete removes.
Pane {
    id: pane

    required property ClipboardModel model
    readonly property ClipboardModel clipboard: model
    readonly property bool historyOn: surroundings.settings.clipboardHistory
    property string copied: ""

    function copy(id) {
        clipboard.copy(id)
        copied = id
    }

    first: search.field
    Keys.onMenuPressed: if (list.visible) list.openCurrent()
    onPresented: {
        copied = ""
        list.showNewest()
    }

    Item {
        id: header

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 28
        z: 1 // so that its tips lie over the list

        Row {
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            spacing: 6

            Repeater {
                model: pane.clipboard.filterTitles

                FilterChip {
                    required property int index
                    required property string modelData

                    text: modelData
                    active: index === pane.clipboard.filter
                    onClicked: pane.clipboard.filter = index
                }
            }
        }
        Row {
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            spacing: 6

            SearchField {
                id: search

                anchors.verticalCenter: parent.verticalCenter
                screenModel: pane.screenModel
                field.focus: true
                field.takesMenuKey: !list.visible
                text: pane.clipboard.query
                onTextChanged: {
                    pane.clipboard.query = text
                    list.showNewest()
                }

                field.Keys.onPressed: event => {
                    event.accepted = event.key === Qt.Key_P && event.modifiers === Qt.ControlModifier
                    if (event.accepted)
                        list.pinCurrent()
                }
                field.Keys.onUpPressed: list.step(() => list.decrementCurrentIndex())
                field.Keys.onDownPressed: list.step(() => list.incrementCurrentIndex())
                field.Keys.onReturnPressed: list.copyCurrent()
                field.Keys.onEnterPressed: list.copyCurrent()
                field.Keys.onDeletePressed: event => {
                    event.accepted = field.cursorPosition === field.length && field.selectedText === ""
                    if (event.accepted)
                        list.removeCurrent()
                }
            }
            SymbolButton {
                anchors.verticalCenter: parent.verticalCenter
                tipBelow: true
                symbol: "trash"
                help: qsTranslate("notch", "Clear history")
                onClicked: pane.clipboard.clear()
            }
        }
    }

    PaneMessage {
        anchors { fill: parent; topMargin: header.height }
        visible: !list.visible
        symbol: "doc.on.clipboard"
        text: !pane.historyOn ? qsTranslate("notch", "Clipboard history is off.\nTurn it on in Settings.")
            : pane.clipboard.items.length === 0
            ? qsTranslate("notch", "Copy something and it appears here.\nPasswords from password managers are never saved.")
            : qsTranslate("notch", "Nothing matches.")
    }

    ListView {
        id: list

        // Not currentItem: after quick typing it may still be one that is not shown any more.
        function current() {
            return rows.at(Math.max(currentIndex, 0))
        }

        function copyCurrent() {
            const item = current()
            if (item)
                pane.copy(item.id)
        }

        function step(move) {
            chosen = true
            move()
        }

        function showNewest() {
            chosen = false
            currentIndex = 0
            positionViewAtBeginning()
        }

        function openMenu(item, row, x, y, byKey) {
            const at = row.mapToItem(pane, x, y)
            menu.item = item.id
            menu.pinned = item.pinned
            menu.openAt(at.x, at.y, byKey)
        }

        function openCurrent() {
            positionViewAtIndex(currentIndex, ListView.Contain)
            if (currentItem)
                openMenu(current(), currentItem, currentItem.width / 2, currentItem.height / 2, true)
        }

        function removeCurrent() {
            const item = current()
            if (item)
                pane.clipboard.remove(item.id)
        }

        function pinCurrent() {
            const item = current()
            if (item)
                pane.clipboard.setPinned(item.id, !item.pinned)
        }

        property bool chosen: false // The keys chose the current row; else it is the newest.

        anchors { fill: parent; topMargin: header.height + 4 }
        visible: pane.historyOn && rows.count > 0
        clip: true
        spacing: 2
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: false
        onCountChanged: if (!chosen) showNewest()
        T.ScrollBar.vertical: ScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("notch", "Clipboard")

        model: KeyedListModel {
            id: rows

            source: pane.clipboard
            list: "visible"
        }
        delegate: ClipRow {
            required property clipboardItem modelData
            required property int index

            transform: Translate { x: Theme.mirrored ? 10 : 0 } // beside the bar; Qt 6.8 sets x to 0
            width: ListView.view.width - 10
            item: modelData
            surroundings: pane.surroundings
            shown: pane.visible
            copied: item.id === pane.copied
            current: search.field.activeFocus && index === list.currentIndex
            onClicked: pane.copy(item.id)
            onMenuWanted: (x, y) => list.openMenu(item, this, x, y, false)
        }
        move: Transition { NumberAnimation { properties: "y"; duration: 160; easing.type: Easing.OutCubic } }
        displaced: move
    }

    ContextMenu {
        id: menu

        property string item
        property bool pinned

        screenModel: pane.screenModel
        entries: [
            pinned ? qsTranslate("notch", "Unpin")
                //: In the menu of an entry of the clipboard history: keep it until it is deleted.
                : qsTranslate("notch", "Pin"),
            //: In the menu of an entry: delete it from the history.
            qsTranslate("notch", "Delete")
        ]
        onChosen: index => {
            if (index === 0)
                pane.clipboard.setPinned(item, !pinned)
            else
                pane.clipboard.remove(item)
        }
    }
}
