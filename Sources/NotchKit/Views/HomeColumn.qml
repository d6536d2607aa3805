import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// One column of Home blocks; it scrolls when they do not fit.
Flickable {
    id: column

    required property var files
    required property NotchServices services
    required property NotchScreenModel screenModel
    required property NotchPresentation presentation

    clip: true
    contentHeight: blocks.height
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    T.ScrollBar.vertical: ScrollBar {}

    Column {
        id: blocks

        width: column.width
        spacing: Theme.gap

        Repeater {
            model: column.files

            Loader {
                required property string modelData

                width: blocks.width
                Component.onCompleted: setSource(modelData, {
                    services: column.services,
                    screenModel: column.screenModel,
                    presentation: column.presentation,
                    shown: Qt.binding(() => column.visible)
                })
            }
        }
    }
}
