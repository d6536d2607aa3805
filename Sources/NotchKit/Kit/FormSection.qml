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
    default property alias rows: column.data

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    FormLabel {
        visible: section.title !== ""
        width: section.width
        leftPadding: Theme.window.rowInset
        rightPadding: Theme.window.rowInset
        text: section.title
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Rectangle {
        width: section.width
        height: column.height
        radius: Theme.window.radius
        color: Theme.window.group
        border.color: Theme.window.outline

        Column {
            id: column

            width: parent.width
        }
    }
    FormLabel {
        visible: section.footer !== ""
        width: section.width
        leftPadding: Theme.window.rowInset
        rightPadding: Theme.window.rowInset
        text: section.footer
        font.pixelSize: Theme.window.smallFontSize
        color: Theme.window.dim
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.StaticText
    }
}
