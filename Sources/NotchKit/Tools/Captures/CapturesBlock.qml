import QtQuick
import Kestrune.Views

/// The newest screenshots; a click on one opens it.
HomeBlock {
    id: block

    required property CapturesModel model
    readonly property CapturesModel captures: model
    readonly property list<captureItem> newest: captures.items.slice(0, 3)

    title: qsTranslate("notch", "Latest screenshots")

    Column {
        width: parent.width
        spacing: 8

        SectionLabel {
            title: block.title
            symbol: "camera.viewfinder"
        }
        PlainText {
            width: parent.width
            visible: block.newest.length === 0
            text: block.captures.needsAccess
                ? Format.namingHost(qsTranslate("notch", "Allow %1 to read your screenshots folder in\nSystem Settings › Privacy & Security › Files and Folders."))
                : qsTranslate("notch", "Take a screenshot (⇧⌘4) and it appears here.\nDrag it into any app, or right-click for more.")
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
        Row {
            id: row

            width: parent.width
            visible: block.newest.length > 0
            spacing: Theme.gap

            Repeater {
                model: block.newest

                CaptureThumb {
                    required property captureItem modelData

                    width: (row.width - 2 * row.spacing) / 3
                    height: Math.round(width * 0.66)
                    radius: 6
                    captioned: false
                    item: modelData
                    surroundings: block.surroundings
                    thumbnail: block.captures.thumbnails[item.id]
                    onClicked: {
                        block.captures.open(item.id)
                        block.surroundings.collapse()
                    }
                }
            }
        }
    }
}
