import QtQuick
import Kestrune.Views

/// The weather now and today's range.
HomeBlock {
    id: block

    required property WeatherModel model
    readonly property WeatherModel weather: model

    title: qsTranslate("notch", "Weather")

    WeatherFigures {
        id: figures

        model: block.weather
        surroundings: block.surroundings
    }

    Column {
        width: parent.width
        spacing: 6

        SectionLabel {
            title: block.title
            symbol: "cloud.sun"
        }
        PlainText {
            width: parent.width
            visible: !block.weather.hasPlace
            text: qsTranslate("notch", "Choose a city to see its weather.")
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
        Item {
            width: parent.width
            height: 32
            visible: block.weather.hasPlace

            Symbol {
                id: sky

                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                name: figures.symbol
                size: 26
                color: figures.symbol === "sun.max.fill" ? Theme.sun : Theme.text
            }
            PlainText {
                id: temperature

                anchors { left: sky.right; leftMargin: 8; verticalCenter: parent.verticalCenter }
                text: figures.temperature
                font.pixelSize: 26
                color: Theme.text
            }
            Column {
                anchors { left: temperature.right; leftMargin: 12; right: parent.right; verticalCenter: parent.verticalCenter }

                PlainText {
                    width: parent.width
                    text: figures.city
                    font.pixelSize: Theme.fontSize
                    color: Theme.text
                    horizontalAlignment: Text.AlignRight
                    elide: Text.ElideRight
                }
                PlainText {
                    width: parent.width
                    text: figures.range
                    font.pixelSize: Theme.fontSize
                    color: Theme.dim
                    horizontalAlignment: Text.AlignRight
                    elide: Text.ElideRight
                }
            }
        }
        PlainText {
            width: parent.width
            visible: block.weather.hasPlace && text !== ""
            text: figures.age || block.weather.error
            font.pixelSize: Theme.smallFontSize
            color: Theme.warning
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
    }
}
