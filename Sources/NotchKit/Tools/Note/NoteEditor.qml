import QtQuick
import Kestrune.Views

/// An editor bound to the note: each keystroke is stored at once.
PlainEditor {
    required property NotchSettings settings

    stored: settings.note
    placeholder: qsTranslate("notch", "Quick note… it saves as you type.")
    name: qsTranslate("notch", "Note")
    onEdited: text => settings.note = text
}
