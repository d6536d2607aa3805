import QtQuick
import Kestrune.Views

/// The menu of a text field, its parent: with the right button, and with the menu key through `openByKey`.
MouseArea {
    id: area

    required property Item field // A TextInput or a TextEdit.
    property Look look: Theme
    property NotchScreenModel screenModel: null // For a field of the notch: the menu stays inside that.

    /// The field keeps its selection meanwhile.
    readonly property bool engaged: menu.active

    function openByKey() {
        const cursor = field.cursorRectangle
        open(field.mapToItem(null, cursor.x, cursor.y + cursor.height), true)
    }

    function open(place, byKey) {
        menu.active = true
        menu.item.selected = field.selectedText !== ""
        menu.item.openAt(place.x, place.y, byKey)
    }

    function discard() {
        if (menu.item && !menu.item.visible)
            menu.active = false
    }

    anchors.fill: parent
    acceptedButtons: Qt.RightButton
    onPressed: event => {
        field.forceActiveFocus(Qt.MouseFocusReason)
        screenModel?.keyboardWanted()
        open(mapToItem(null, event.x, event.y), false)
    }

    Loader {
        id: menu

        active: false
        sourceComponent: ContextMenu {
            id: popup

            property bool selected: false
            readonly property var changes: [() => area.field.cut(), () => area.field.copy()] // Functions.
            readonly property var always: [() => area.field.paste(), () => area.field.selectAll()]
            readonly property var actions: selected ? changes.concat(always) : always
            readonly property size notch: area.screenModel?.geometry.shapeSize(true, false) ?? Qt.size(0, 0)

            parent: area.Window.contentItem
            look: area.look
            screenModel: area.screenModel
            owner: area.field
            bounds: area.screenModel ? Qt.rect((parent.width - Theme.contentWidth) / 2, 0, Theme.contentWidth, notch.height)
                                     : Qt.rect(0, 0, parent.width, parent.height)
            entries: {
                //: In the menu of a text field, as “Copy”, “Paste” and “Select All”.
                const changing = [qsTranslate("notch", "Cut"), qsTranslate("notch", "Copy")]
                const others = [qsTranslate("notch", "Paste"), qsTranslate("notch", "Select All")]
                return selected ? changing.concat(others) : others
            }
            onChosen: index => actions[index]()
            onClosed: Qt.callLater(area.discard)
        }
    }
}
