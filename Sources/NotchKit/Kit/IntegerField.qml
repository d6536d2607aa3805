import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A field of one whole number, stored with each keystroke. A stored number that changes elsewhere shows at
/// once; an empty field counts as 0 and says so when it is left.
T.TextField {
    id: field

    required property string name // Read out.
    required property string stored

    /// The user typed this.
    signal modified(string text)

    function show() {
        if (text !== stored)
            text = stored
    }

    implicitWidth: 132
    implicitHeight: 26
    leftPadding: 8
    rightPadding: 8
    font.family: Qt.application.font.family
    font.pixelSize: Theme.window.fontSize
    color: Theme.window.text
    selectionColor: Theme.window.accent
    selectedTextColor: Theme.window.accentText
    horizontalAlignment: TextInput.AlignRight
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    opacity: enabled ? 1 : Theme.window.disabledOpacity
    inputMethodHints: Qt.ImhDigitsOnly
    validator: RegularExpressionValidator { regularExpression: /[0-9]{0,18}/ }
    Accessible.role: Accessible.EditableText
    Accessible.name: name
    background: Rectangle {
        radius: Theme.window.controlRadius
        color: field.hovered ? Theme.window.hovered : Theme.window.control
        border { width: field.activeFocus ? 2 : 0; color: Theme.window.accent }
    }
    Component.onCompleted: {
        ClipboardGuard.detach(field)
        show()
    }
    onStoredChanged: if (!activeFocus || text !== "") show()
    onTextEdited: field.modified(text)
    onActiveFocusChanged: if (!activeFocus) show()
}
