import QtQuick
import Kestrune.Views

/// One day of the forecast: its name, its sky, its highest and lowest temperature.
Tile {
    id: tile

    required property weatherDayFigures day

    Accessible.role: Accessible.StaticText
    Accessible.name: day.help

    Column {
        anchors.centerIn: parent
        width: parent.width - 8
        spacing: 4

        PlainText {
            width: parent.width
            text: tile.day.label
            font.pixelSize: Theme.fontSize
            font.weight: Font.DemiBold
            color: tile.day.today ? Theme.text : Theme.dim
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Symbol {
            width: parent.width
            name: tile.day.symbol
            size: 26
            color: tile.day.symbol === "sun.max.fill" ? Theme.sun : Theme.text
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 6

            PlainText {
                text: tile.day.high
                font.pixelSize: Theme.largeFontSize
                font.weight: Font.Medium
                color: Theme.text
                Accessible.ignored: true
            }
            PlainText {
                text: tile.day.low
                font.pixelSize: Theme.largeFontSize
                color: Theme.dim
                Accessible.ignored: true
            }
        }
    }
}
