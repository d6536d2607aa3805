import QtQuick
import Kestrune.Views

/// Processor, memory, disk and battery.
Pane {
    id: pane

    required property SystemModel model

    SystemPresentation {
        id: figures

        model: pane.model
    }

    Column {
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: 8

        Repeater {
            model: figures.count

            Tile {
                required property int index

                width: parent.width
                height: 48

                SystemRow {
                    anchors { left: parent.left; right: parent.right; margins: 14; verticalCenter: parent.verticalCenter }
                    line: figures.lines[index]
                }
            }
        }
    }
}
