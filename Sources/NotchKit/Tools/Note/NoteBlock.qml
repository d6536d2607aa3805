import QtQuick
import Kestrune.Views

/// The first lines of the note.
HomeBlock {
    id: block

    readonly property string note: surroundings.settings.note

    title: qsTranslate("notch", "Note")

    Column {
        width: parent.width
        spacing: 4

        SectionLabel {
            title: block.title
            symbol: "note.text"
        }
        PlainText {
            width: parent.width
            text: block.note === "" ? qsTranslate("notch", "Quick note… it saves as you type.") : block.note
            font.pixelSize: Theme.fontSize
            color: block.note === "" ? Theme.faded : Theme.dim
            wrapMode: Text.Wrap
            maximumLineCount: 4
            elide: Text.ElideRight
        }
    }
}
