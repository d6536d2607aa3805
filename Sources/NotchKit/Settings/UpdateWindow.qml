import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// What the look for an update came to: a heading, what is new or went wrong, and what can be done.
///
///   (✓)  Heading
///        body
///        ╭ notes, which scroll ╮
///                Later [Download]
DesktopWindow {
    id: window

    required property Updater updater
    readonly property int wanted: 2 * Theme.window.inset + texts.height + buttons.height + 20
                                  + (box.visible ? box.height + 16 : 0)

    width: 440
    height: wanted
    minimumWidth: 440
    maximumWidth: 440
    minimumHeight: wanted
    maximumHeight: wanted
    title: qsTranslate("notch", "Software Update")

    UpdatePresentation {
        id: words

        updater: window.updater
    }

    FocusScope {
        anchors { fill: parent; margins: Theme.window.inset }
        focus: true
        Keys.onEscapePressed: window.close()

        Symbol {
            id: symbol

            anchors.left: parent.left
            width: 36
            height: 36
            name: words.symbol
            size: 36
            color: Theme.window.accent
        }
        Spinner {
            anchors.horizontalCenter: symbol.horizontalCenter
            y: (heading.height - height) / 2
            running: words.symbol === ""
            color: Theme.window.text
        }
        Column {
            id: texts

            anchors { left: symbol.right; leftMargin: 14; right: parent.right }
            spacing: 4

            FormLabel {
                id: heading

                width: parent.width
                text: words.heading
                font.pixelSize: Theme.window.titleFontSize
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.role: Accessible.Heading
            }
            FormLabel {
                width: parent.width
                height: box.visible ? implicitHeight : Math.max(implicitHeight, 36) // Two lines, as most have.
                verticalAlignment: Text.AlignTop
                text: words.body
                color: Theme.window.dim
                wrapMode: Text.Wrap
                lineHeight: 1.15
            }
        }
        Tile {
            id: box

            anchors { left: texts.left; right: parent.right; bottom: buttons.top; bottomMargin: 20 }
            height: Math.min(notes.implicitHeight + 2 * Theme.window.rowInset + 2, 190)
            visible: words.notes !== ""
            look: Theme.window

            FocusRing {
                visible: scroller.activeFocus
                look: Theme.window
            }
            Flickable {
                id: scroller

                anchors { fill: parent; margins: 1 }
                clip: true
                contentHeight: notes.implicitHeight + 2 * Theme.window.rowInset
                boundsBehavior: Flickable.StopAtBounds
                activeFocusOnTab: contentHeight > height
                Keys.onUpPressed: bar.decrease()
                Keys.onDownPressed: bar.increase()
                T.ScrollBar.vertical: ScrollBar {
                    id: bar

                    look: Theme.window
                    implicitWidth: 12
                    padding: 3
                }

                FormLabel {
                    id: notes

                    x: Theme.window.rowInset
                    y: Theme.window.rowInset
                    width: scroller.width - 2 * Theme.window.rowInset
                    text: words.notes
                    wrapMode: Text.Wrap
                    lineHeight: 1.2
                }
            }
        }
        Row {
            id: buttons

            anchors { right: parent.right; bottom: parent.bottom }
            spacing: 8

            TextButton {
                look: Theme.window
                text: words.dismissal
                onClicked: window.close()
            }
            TextButton {
                look: Theme.window
                visible: text !== ""
                text: words.action
                prominent: true
                onClicked: words.act()
            }
        }
    }
}
