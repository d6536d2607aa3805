import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A menu at the pointer, kept inside `bounds`, its parent's unless they are given. With the keyboard, the arrows choose an
/// entry. It closes with the notch that it belongs to, and gives the keyboard back to what had it.
T.Popup {
    id: menu

    required property list<string> entries
    property Look look: Theme
    property NotchScreenModel screenModel: null
    property Item owner: parent // It closes when that goes from the screen.
    property rect bounds: Qt.rect(0, 0, parent?.width ?? 0, parent?.height ?? 0)
    readonly property bool allowed: (owner?.visible ?? false) && (screenModel?.expanded ?? true)

    /// The entry with this place among the entries.
    signal chosen(int index)

    property point place
    property Item before // What had the keyboard.
    property bool byKey: false // It was asked for with the keyboard.

    function placeAt(x, y, key = false) {
        place = Qt.point(x, y)
        byKey = key
    }

    function openAt(x, y, key = false) {
        placeAt(x, y, key)
        if (allowed)
            open()
    }

    function takeKeyboard() {
        rows.itemAt(0)?.forceActiveFocus(byKey ? Qt.TabFocusReason : Qt.PopupFocusReason)
    }

    // Bound, because the size of entries that came with the opening is known only after it.
    x: Math.max(bounds.left, Math.min(place.x - (Theme.mirrored ? width : 0), bounds.right - width))
    y: place.y + height > bounds.bottom ? Math.max(bounds.top, place.y - height) : place.y
    width: column.implicitWidth + 8
    height: column.implicitHeight + 8
    padding: 4
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: before = parent.Window.activeFocusItem
    onOpened: takeKeyboard()
    onClosed: if (allowed && before?.visible) before.forceActiveFocus(Qt.PopupFocusReason)
    onAllowedChanged: if (!allowed) close()
    background: Rectangle {
        radius: menu.look.controlRadius
        color: menu.look.popup
        border.color: menu.look.popupOutline
    }
    contentItem: Column {
        id: column

        Repeater {
            id: rows

            model: menu.entries
            onItemAdded: (index, item) => {
                if (index === 0 && menu.opened)
                    menu.takeKeyboard()
            }

            ButtonBase {
                id: button

                required property int index
                required property string modelData

                look: menu.look
                text: modelData
                plain: true
                ringed: visualFocus
                radius: 5
                width: Math.max(implicitWidth, column.width)
                implicitWidth: Math.min(Math.max(label.implicitWidth + 24, 96), 320)
                implicitHeight: 26
                Accessible.role: Accessible.MenuItem
                Keys.onUpPressed: rows.itemAt(Math.max(index - 1, 0)).forceActiveFocus(Qt.TabFocusReason)
                Keys.onDownPressed: rows.itemAt(Math.min(index + 1, rows.count - 1))
                    .forceActiveFocus(Qt.TabFocusReason)
                onClicked: {
                    menu.close()
                    menu.chosen(index)
                }
                contentItem: PlainText {
                    id: label

                    leftPadding: 8
                    rightPadding: 8
                    text: button.modelData
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideMiddle
                    font.pixelSize: menu.look.fontSize
                    color: menu.look.text
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
            }
        }
    }
}
