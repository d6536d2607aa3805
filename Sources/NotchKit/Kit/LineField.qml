import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A field of one line.
T.TextField {
    id: field

    required property NotchScreenModel screenModel

    implicitHeight: 24
    leftPadding: 8
    rightPadding: 8
    font.family: Qt.application.font.family
    font.pixelSize: Theme.fontSize
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText
    background: Rectangle {
        radius: Theme.controlRadius
        color: field.hovered ? Theme.hovered : Theme.control
        border.width: field.activeFocus ? 1 : 0
        border.color: Theme.accent
    }
    Component.onCompleted: ClipboardGuard.detach(field)
    onPressed: screenModel.keyboardWanted()

    Text {
        anchors { fill: parent; leftMargin: 8; rightMargin: 8 }
        visible: field.length === 0 && field.preeditText === ""
        text: field.placeholderText
        font: field.font
        color: Theme.faded
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
