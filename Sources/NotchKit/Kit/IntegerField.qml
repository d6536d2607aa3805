import QtQuick
import Kestrune.Views

/// A field of one whole number, stored with each keystroke. A stored number that changes elsewhere shows at
/// once; an empty field counts as 0 and says so when it is left.
FieldBase {
    id: field

    required property string name // Read out.
    required property string stored

    /// The user typed this.
    signal modified(string text)

    function show() {
        if (text !== stored)
            text = stored
    }

    look: Theme.window
    implicitWidth: 132
    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: Qt.ImhDigitsOnly
    validator: RegularExpressionValidator { regularExpression: /[0-9]{0,18}/ }
    Accessible.name: name
    Component.onCompleted: show()
    onStoredChanged: if (!activeFocus || text !== "") show()
    onTextEdited: field.modified(text)
    onActiveFocusChanged: if (!activeFocus) show()
}
