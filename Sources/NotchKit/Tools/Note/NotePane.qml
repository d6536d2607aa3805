import QtQuick
import Kestrune.Views

/// The quick note.
Pane {
    id: pane

    NoteEditor {
        anchors.fill: parent
        settings: pane.surroundings.settings
        screenModel: pane.screenModel
    }
}
