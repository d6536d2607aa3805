import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A menu at the pointer, kept inside its parent. With the keyboard, the arrows choose an entry.
T.Popup {
    id: menu

    required property list<string> entries
    property Look look: Theme

    /// The entry with this place among the entries.
    signal chosen(int index)

    property point place

    function placeAt(x, y) {
        place = Qt.point(x, y)
    }

    function openAt(x, y) {
        placeAt(x, y)
        open()
    }

    // Bound, because the size of entries that came with the opening is known only after it.
    x: Math.max(0, Math.min(place.x - (Theme.mirrored ? width : 0), parent.width - width))
    y: place.y + height > parent.height ? Math.max(0, place.y - height) : place.y
    width: column.implicitWidth + 8
    height: column.implicitHeight + 8
    padding: 4
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onOpened: rows.itemAt(0)?.forceActiveFocus()
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
                    item.forceActiveFocus()
            }

            ButtonBase {
                id: button

                required property int index
                required property string modelData

                look: menu.look
                text: modelData
                plain: true
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
