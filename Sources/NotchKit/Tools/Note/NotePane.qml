import QtQuick
import Kestrune.Views

/// The quick note.
Pane {
    id: pane

    first: editor.field
    kept: true

    NoteEditor {
        id: editor

        anchors.fill: parent
        settings: pane.surroundings.settings
        screenModel: pane.screenModel
    }
}
