import QtQuick
import Kestrune.Views

/// A block of Home: the column that shows it, and its place in the order.
FormRow {
    id: row

    required property homeRow widget
    required property SettingsPresentation presentation

    title: widget.title

    Picker {
        objectName: "column"
        look: row.look
        name: row.title
        model: row.presentation.columnTitles
        chosen: row.widget.column
        onModified: index => row.presentation.setColumn(row.widget.id, index)
    }
    Row {
        spacing: 4

        component MoveButton: SymbolButton {
            look: row.look
            plain: false
            size: 15
            implicitWidth: 26
            implicitHeight: 26
        }

        MoveButton {
            objectName: "up"
            symbol: "chevron.up"
            help: qsTranslate("notch", "Move up")
            onClicked: row.presentation.move(row.widget.id, -1)
        }
        MoveButton {
            objectName: "down"
            symbol: "chevron.down"
            help: qsTranslate("notch", "Move down")
            onClicked: row.presentation.move(row.widget.id, 1)
        }
    }
}
