import QtQuick
import Kestrune.Views

/// The enabled widgets in three columns.
///
///   | left | center | right |   columns without a block take no room
Pane {
    id: pane

    // A list of lists of homeTile.
    readonly property var columns: presentation.homeColumns.filter(tiles => tiles.length > 0)

    onPresented: {
        for (let i = 0; i < shown.count; ++i)
            shown.itemAt(i).present()
    }

    PaneMessage {
        anchors.fill: parent
        visible: pane.columns.length === 0
        symbol: "square.grid.2x2"
        text: qsTranslate("notch", "Choose what Home shows in Settings › Home screen.")
    }

    Row {
        id: row

        // A column's gap lies behind it: the last one's outside.
        anchors { fill: parent; leftMargin: Theme.mirrored ? -Theme.gap : 0; rightMargin: Theme.mirrored ? 0 : -Theme.gap }
        LayoutMirroring.enabled: false // The settings name the columns left, center and right.

        Repeater {
            id: shown

            model: pane.columns

            HomeColumn {
                required property var modelData // One of these lists.

                width: row.width / pane.columns.length
                height: row.height
                tiles: modelData
                surroundings: pane.surroundings
                screenModel: pane.screenModel
                presentation: pane.presentation
            }
        }
    }
}
