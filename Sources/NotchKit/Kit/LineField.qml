import QtQuick
import Kestrune.Views

/// A field of the notch, which gets the keyboard for it.
FieldBase {
    required screenModel

    implicitHeight: 24
    onPressed: screenModel.keyboardWanted()
}
