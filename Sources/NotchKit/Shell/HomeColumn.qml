import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// One column of Home blocks, and the gap behind it, where its bar is while they do not fit.
Flickable {
    id: column

    required property list<homeTile> tiles
    required property NotchSurroundings surroundings
    required property NotchScreenModel screenModel
    required property NotchPresentation presentation

    function present() {
        contentY = 0
        for (let i = 0; i < loaders.count; ++i)
            loaders.itemAt(i).item.presented()
    }

    clip: true
    contentHeight: blocks.height
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    T.ScrollBar.vertical: ScrollBar { rightPadding: 2 }

    FocusReveal { flickable: column }

    // More lies below.
    Rectangle {
        parent: column
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; rightMargin: Theme.gap }
        height: 20
        visible: !column.atYEnd
        gradient: Gradient {
            GradientStop { position: 0; color: "transparent" }
            GradientStop { position: 1; color: Theme.ground }
        }
    }

    Column {
        id: blocks

        objectName: "blocks"
        x: Theme.mirrored ? Theme.gap : 0
        width: column.width - Theme.gap
        spacing: Theme.gap

        Repeater {
            id: loaders

            model: column.tiles

            Loader {
                required property homeTile modelData

                width: blocks.width
                Component.onCompleted: {
                    const given = {
                        tool: modelData.tool,
                        surroundings: column.surroundings,
                        screenModel: column.screenModel,
                        presentation: column.presentation,
                        shown: Qt.binding(() => column.visible)
                    }
                    if (modelData.model)
                        given.model = modelData.model
                    setSource(modelData.file, given)
                }
            }
        }
    }
}
