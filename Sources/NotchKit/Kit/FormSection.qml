import QtQuick
import Kestrune.Views

/// A titled group of rows with hairlines between them, and a text of its own below.
///
///   Title
///   ( row        )
///   (------------)
///   ( row        )
///   footer
Column {
    id: section

    property string title: ""
    property string footer: ""
    property Look look: Theme.window
    default property alias rows: column.data

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    FormLabel {
        visible: section.title !== ""
        width: section.width
        leftPadding: section.look.rowInset
        rightPadding: section.look.rowInset
        look: section.look
        text: section.title
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Tile {
        width: section.width
        height: column.height
        look: section.look

        Column {
            id: column

            width: parent.width
        }
    }
    FormLabel {
        visible: section.footer !== ""
        width: section.width
        leftPadding: section.look.rowInset
        rightPadding: section.look.rowInset
        look: section.look
        text: section.footer
        font.pixelSize: section.look.smallFontSize
        color: section.look.dim
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.StaticText
    }
}
