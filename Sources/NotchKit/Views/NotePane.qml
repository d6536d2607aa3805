import QtQuick
import Kestrune.Views

/// The quick note.
FocusScope {
    id: pane

    required property NotchServices services
    required property NotchScreenModel screenModel

    focus: true

    NoteEditor {
        anchors.fill: parent
        settings: pane.services.settings
        screenModel: pane.screenModel
    }
}
