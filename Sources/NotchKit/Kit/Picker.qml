import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// Chooses one of a few titles from a list that drops down. With the keyboard, Space opens it and the arrows
/// choose.
T.ComboBox {
    id: control

    required property string name // Read out.
    required property int chosen

    /// The user chose another one.
    signal modified(int index)

    implicitWidth: 132
    implicitHeight: 26
    focusPolicy: Qt.StrongFocus // Its list gets the keys of what has the focus.
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.window.disabledOpacity
    currentIndex: chosen
    Accessible.role: Accessible.ComboBox
    Accessible.name: name + ": " + displayText
    Keys.onReturnPressed: popup.open()
    Keys.onEnterPressed: popup.open()
    onActivated: index => control.modified(index)

    background: Rectangle {
        radius: Theme.window.controlRadius
        color: control.pressed || control.popup.visible ? Theme.window.pressed
             : control.hovered ? Theme.window.hovered : Theme.window.control
        border { width: control.visualFocus ? 2 : 0; color: Theme.window.accent }
    }
    contentItem: FormLabel {
        leftPadding: Theme.mirrored ? 26 : 10
        rightPadding: Theme.mirrored ? 10 : 26
        text: control.displayText
        Accessible.ignored: true
    }
    indicator: Column {
        x: Theme.mirrored ? 8 : control.width - width - 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: -6

        Symbol { name: "chevron.up"; size: 12; color: Theme.window.dim }
        Symbol { name: "chevron.down"; size: 12; color: Theme.window.dim }
    }
    delegate: PickerEntry {
        required property int index
        required property string modelData

        width: ListView.view.width
        text: modelData
        chosen: control.currentIndex === index
        highlighted: control.highlightedIndex === index
    }
    popup: T.Popup {
        y: control.height + 4
        width: control.width
        height: list.contentHeight + topPadding + bottomPadding
        margins: 8
        padding: 4
        background: Rectangle {
            radius: Theme.window.controlRadius + 2
            color: Theme.window.popup
            border.color: Theme.window.highlighted
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
