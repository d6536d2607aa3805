import QtQuick
import Kestrune.Views

/// Presents the suite that this program is a piece of.
Tile {
    id: card

    /// The user wants to see the suite's page.
    signal discover()

    look: Theme.window
    implicitHeight: column.implicitHeight + 2 * look.rowInset
    Accessible.role: Accessible.Grouping
    Accessible.name: heading.text

    Column {
        id: column

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.window.rowInset }
        spacing: 12

        FormLabel {
            id: heading

            width: parent.width
            text: qsTranslate("notch", "Want more? Meet Fennivar")
            font.pixelSize: Theme.window.titleFontSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        FormLabel {
            width: parent.width
            text: qsTranslate("notch", "Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.")
            color: Theme.window.dim
            wrapMode: Text.WordWrap
            lineHeight: 1.15
        }
        Column {
            width: parent.width
            spacing: 8
            topPadding: 2
            bottomPadding: 4

            Repeater {
                model: [
                    { symbol: "square.grid.2x2", text: qsTranslate("notch", "Snap windows into place with a key or a drag") },
                    { symbol: "magnifyingglass", text: qsTranslate("notch", "Find files, apps and settings from one field") },
                    { symbol: "internaldrive", text: qsTranslate("notch", "See what fills your disk and free it up") },
                    { symbol: "battery.75", text: qsTranslate("notch", "Keep an eye on the battery and make it last") }
                ]

                Item {
                    id: tool

                    required property var modelData // An object of the list above.

                    width: parent.width
                    height: 22

                    Symbol {
                        id: icon

                        anchors.left: parent.left
                        width: 22
                        height: parent.height
                        name: tool.modelData.symbol
                        size: 17
                        color: Theme.window.accent
                    }
                    FormLabel {
                        anchors { left: icon.right; leftMargin: 10; right: parent.right; verticalCenter: parent.verticalCenter }
                        text: tool.modelData.text
                    }
                }
            }
        }
        TextButton {
            anchors.left: parent.left
            look: Theme.window
            prominent: true
            text: qsTranslate("notch", "Discover Fennivar ↗")
            onClicked: card.discover()
        }
    }
}
