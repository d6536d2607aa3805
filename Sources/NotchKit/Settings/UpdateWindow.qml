import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Kestrune.Views

/// What the look for an update came to: a heading, what is new or went wrong, and what can be done.
///
///   (✓)  Heading
///        body
///        ╭ notes, which scroll ╮
///                Later [Download]
Window {
    id: window

    required property Updater updater
    required property Appearance appearance
    readonly property int wanted: 2 * FormTheme.inset + texts.height + buttons.height + 20
                                  + (box.visible ? box.height + 16 : 0)

    width: 440
    height: wanted
    minimumWidth: 440
    maximumWidth: 440
    minimumHeight: wanted
    maximumHeight: wanted
    color: FormTheme.window
    title: qsTranslate("notch", "Software Update")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    UpdatePresentation {
        id: words

        updater: window.updater
    }
    Binding {
        target: FormTheme
        property: "dark"
        value: window.appearance.dark
    }

    FocusScope {
        anchors { fill: parent; margins: FormTheme.inset }
        focus: true
        Keys.onEscapePressed: window.close()

        Symbol {
            id: symbol

            anchors.left: parent.left
            width: 36
            height: 36
            name: words.symbol
            size: 36
            color: FormTheme.accent
        }
        Spinner {
            anchors.horizontalCenter: symbol.horizontalCenter
            y: (heading.height - height) / 2
            running: words.symbol === ""
            color: FormTheme.text
        }
        Column {
            id: texts

            anchors { left: symbol.right; leftMargin: 14; right: parent.right }
            spacing: 4

            FormLabel {
                id: heading

                width: parent.width
                text: words.heading
                font.pixelSize: 16
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
                color: FormTheme.dim
                wrapMode: Text.Wrap
                lineHeight: 1.15
            }
        }
        Rectangle {
            id: box

            anchors { left: texts.left; right: parent.right; bottom: buttons.top; bottomMargin: 20 }
            height: Math.min(notes.implicitHeight + 2 * FormTheme.rowInset + 2, 190)
            visible: words.notes !== ""
            radius: FormTheme.radius
            color: FormTheme.group
            border.color: scroller.activeFocus ? FormTheme.accent : FormTheme.outline

            Flickable {
                id: scroller

                anchors { fill: parent; margins: 1 }
                clip: true
                contentHeight: notes.implicitHeight + 2 * FormTheme.rowInset
                boundsBehavior: Flickable.StopAtBounds
                activeFocusOnTab: contentHeight > height
                Keys.onUpPressed: bar.decrease()
                Keys.onDownPressed: bar.increase()
                T.ScrollBar.vertical: FormScrollBar { id: bar }

                FormLabel {
                    id: notes

                    x: FormTheme.rowInset
                    y: FormTheme.rowInset
                    width: scroller.width - 2 * FormTheme.rowInset
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

            FormButton {
                text: words.dismissal
                onClicked: window.close()
            }
            FormButton {
                visible: text !== ""
                text: words.action
                prominent: true
                onClicked: words.act()
            }
        }
    }
}
