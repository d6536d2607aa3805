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
    font.pixelSize: FormTheme.fontSize
    color: FormTheme.text
    selectionColor: FormTheme.accent
    selectedTextColor: FormTheme.accentText
    horizontalAlignment: TextInput.AlignRight
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    opacity: enabled ? 1 : FormTheme.disabledOpacity
    inputMethodHints: Qt.ImhDigitsOnly
    validator: RegularExpressionValidator { regularExpression: /[0-9]{0,18}/ }
    Accessible.role: Accessible.EditableText
    Accessible.name: name
    background: Rectangle {
        radius: FormTheme.controlRadius
        color: field.hovered ? FormTheme.hovered : FormTheme.control
        border { width: field.activeFocus ? 2 : 0; color: FormTheme.accent }
    }
    Component.onCompleted: {
        ClipboardGuard.detach(field)
        show()
    }
    onStoredChanged: if (!activeFocus || text !== "") show()
    onTextEdited: field.modified(text)
    onActiveFocusChanged: if (!activeFocus) show()
}
