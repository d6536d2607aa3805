import QtQuick
import Kestrune.Views

/// A button with a combination of keys: once clicked, the next one that is pressed takes its place. Escape, another
/// click and the loss of the keyboard leave it as it was.
TextButton {
    id: control

    required property string keys
    /// Called with what is pressed, Qt's key and modifiers; says whether those keys will do.
    required property var record
    property bool recording: false

    look: Theme.window
    text: recording ? qsTranslate("notch", "Press the keys…") : keys
    help: qsTranslate("notch", "Keys that open and close the notch: %1").arg(keys)
    prominent: recording
    onClicked: recording = !recording
    onActiveFocusChanged: recording = false
    Keys.priority: Keys.BeforeItem
    Keys.onPressed: event => {
        if (!recording)
            return
        event.accepted = true
        if (event.key === Qt.Key_Escape || control.record(event.key, event.modifiers))
            recording = false
    }
    Keys.onReleased: event => event.accepted = recording
}
