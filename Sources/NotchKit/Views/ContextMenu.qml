import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A menu of one entry at the pointer, kept inside its parent.
T.Popup {
    id: menu

    required property string entry

    signal chosen

    function openAt(x, y) {
        menu.x = Math.max(0, Math.min(x, parent.width - width))
        menu.y = y + height > parent.height ? Math.max(0, y - height) : y
        open()
    }

    width: button.implicitWidth + 8
    height: button.implicitHeight + 8
    padding: 4
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    background: Rectangle {
        radius: 8
        color: "#2c2c2e"
        border.color: Theme.hovered
    }
    contentItem: ButtonBase {
        id: button

        help: menu.entry
        text: menu.entry
        plain: true
        focus: true
        radius: 5
        implicitWidth: Math.max(label.implicitWidth + 24, 96)
        implicitHeight: 26
        Accessible.role: Accessible.MenuItem
        onClicked: {
            menu.close()
            menu.chosen()
        }
        contentItem: Text {
            id: label

            leftPadding: 8
            text: menu.entry
            font.pixelSize: 12
            color: Theme.text
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
