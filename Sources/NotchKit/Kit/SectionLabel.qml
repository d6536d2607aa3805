import QtQuick
import Kestrune.Views

/// A section's heading: symbol and title.
Row {
    id: label

    required property string title
    required property string symbol

    anchors.left: parent.left // Also in a column, whose children do not turn around by themselves.
    spacing: 6
    Accessible.role: Accessible.Heading
    Accessible.name: title

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: label.symbol
        size: 13
        color: Theme.text
    }
    PlainText {
        anchors.verticalCenter: parent.verticalCenter
        text: label.title
        font.pixelSize: Theme.fontSize
        font.weight: Font.DemiBold
        color: Theme.text
        Accessible.ignored: true
    }
}
