import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// Chooses one of a few titles from a list that drops down. With the keyboard, Space opens it and the arrows
/// choose.
T.ComboBox {
    id: control

    required property string name // Read out.
    required property int chosen
    property Look look: Theme.window

    /// The user chose another one.
    signal modified(int index)

    implicitWidth: 132
    implicitHeight: 26
    focusPolicy: Qt.StrongFocus // Its list gets the keys of what has the focus.
    hoverEnabled: true
    opacity: enabled ? 1 : look.disabledOpacity
    currentIndex: chosen
    Accessible.role: Accessible.ComboBox
    Accessible.name: name + ": " + displayText
    Keys.onReturnPressed: popup.open()
    Keys.onEnterPressed: popup.open()
    onActivated: index => control.modified(index)

    background: Rectangle {
        radius: control.look.controlRadius
        color: control.pressed || control.popup.visible ? control.look.pressed
             : control.hovered ? control.look.hovered : control.look.control

        FocusRing {
            visible: control.visualFocus
            look: control.look
        }
    }
    contentItem: FormLabel {
        leftPadding: Theme.mirrored ? 26 : 10
        rightPadding: Theme.mirrored ? 10 : 26
        look: control.look
        text: control.displayText
        Accessible.ignored: true
    }
    indicator: Column {
        x: Theme.mirrored ? 8 : control.width - width - 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: -6

        Symbol { name: "chevron.up"; size: 12; color: control.look.dim }
        Symbol { name: "chevron.down"; size: 12; color: control.look.dim }
    }
    delegate: T.ItemDelegate {
        id: entry

        required property int index
        required property string modelData

        width: ListView.view.width
        implicitHeight: 26
        text: modelData
        highlighted: control.highlightedIndex === index
        hoverEnabled: true
        Accessible.role: Accessible.ListItem
        Accessible.name: text
        Accessible.selected: control.currentIndex === index
        background: Rectangle {
            radius: control.look.controlRadius - 2
            color: entry.highlighted ? control.look.accent : "transparent"
        }
        contentItem: FormLabel {
            leftPadding: Theme.mirrored ? 0 : 20
            rightPadding: Theme.mirrored ? 20 : 0
            text: entry.text
            look: control.look
            color: entry.highlighted ? look.accentText : look.text
            Accessible.ignored: true

            Rectangle { // The chosen one's dot.
                visible: control.currentIndex === entry.index
                anchors { left: parent.left; leftMargin: 8; verticalCenter: parent.verticalCenter }
                width: 5
                height: 5
                radius: 2.5
                color: parent.color
            }
        }
    }
    popup: T.Popup {
        y: control.height + 4
        width: control.width
        height: list.contentHeight + topPadding + bottomPadding
        margins: 8
        padding: 4
        background: Rectangle {
            radius: control.look.controlRadius + 2
            color: control.look.popup
            border.color: control.look.popupOutline
        }
        contentItem: ListView {
            id: list

            implicitHeight: contentHeight
            clip: true
            interactive: false
            model: control.delegateModel
            currentIndex: control.highlightedIndex
        }
    }
}
