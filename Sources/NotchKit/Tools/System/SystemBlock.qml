import QtQuick
import Kestrune.Views

/// The machine's figures in brief.
HomeBlock {
    id: block

    required property SystemModel model

    title: qsTranslate("notch", "System")

    SystemPresentation {
        id: figures

        model: block.model
    }

    Column {
        width: parent.width
        spacing: 8

        SectionLabel {
            title: block.title
            symbol: "gauge.with.dots.needle.33percent"
        }
        Repeater {
            model: figures.count

            SystemRow {
                required property int index

                width: parent.width
                textSize: 11
                line: figures.lines[index]
            }
        }
    }
}
