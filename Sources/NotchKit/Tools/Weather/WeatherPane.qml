import QtQuick
import Kestrune.Views

/// The weather at the place, or the editor that asks for one.
///
///   | symbol  temperature   place / wind |
///   | day | day | day | day | day | …     |
///   | note                               |
Pane {
    id: pane

    required property WeatherModel model
    readonly property WeatherModel weather: model
    readonly property bool editorShown: !weather.hasPlace || changing
    property bool changing: false

    function change() {
        editor.field.clear()
        changing = true
        editor.field.forceActiveFocus()
        screenModel.keyboardWanted()
    }

    first: editorShown ? editor.field : null
    kept: true
    onPresented: if (editor.field.text.trim() === "") changing = false
    Keys.onEscapePressed: event => {
        event.accepted = changing && weather.hasPlace
        if (event.accepted)
            changing = false
    }

    WeatherFigures {
        id: figures

        model: pane.weather
        surroundings: pane.surroundings
    }
    Connections {
        target: pane.weather

        function onPlaceFound() {
            pane.changing = false
            editor.field.clear()
        }
    }

    CityEditor {
        id: editor

        anchors { centerIn: parent; verticalCenterOffset: -12 }
        visible: pane.editorShown
        focus: visible
        weather: pane.weather
        screenModel: pane.screenModel
    }

    PlainText {
        id: error

        anchors { left: parent.left; right: parent.right }
        y: pane.editorShown ? editor.y + editor.height + 12 : 0
        height: visible ? 22 : 0
        visible: text !== ""
        text: pane.weather.error
        font.pixelSize: Theme.fontSize
        color: Theme.warning
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    Item {
        id: forecast

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: footer.top }
        anchors.topMargin: error.height
        visible: !pane.editorShown

        Item {
            id: current

            width: parent.width
            height: Math.round(forecast.height * 0.4)

            Symbol {
                id: sky

                anchors { left: parent.left; leftMargin: 4; verticalCenter: parent.verticalCenter }
                name: figures.symbol
                size: 52
                color: figures.symbol === "sun.max.fill" ? Theme.sun : Theme.text
            }
            PlainText {
                id: temperature

                anchors { left: sky.right; leftMargin: 16; verticalCenter: parent.verticalCenter }
                text: figures.temperature
                font.pixelSize: 48
                font.weight: Font.Light
                color: Theme.text
            }
            Column {
                anchors {
                    left: temperature.right; leftMargin: 20
                    right: parent.right
                    verticalCenter: parent.verticalCenter
                }
                spacing: 2

                Row {
                    anchors.left: parent.left
                    spacing: 4

                    PlainText {
                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(implicitWidth, parent.parent.width - pencil.width - parent.spacing)
                        text: figures.city
                        font.pixelSize: 16
                        font.weight: Font.DemiBold
                        color: Theme.text
                        horizontalAlignment: Text.AlignLeft
                        elide: Text.ElideRight
                    }
                    SymbolButton {
                        id: pencil

                        tipBelow: true
                        symbol: "pencil"
                        help: qsTranslate("notch", "Change city")
                        onClicked: pane.change()
                    }
                }
                PlainText {
                    width: parent.width
                    text: [figures.wind, figures.age].filter(part => part !== "").join(" · ")
                    font.pixelSize: Theme.fontSize
                    color: Theme.dim
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideRight
                }
            }
        }

        Row {
            id: week

            anchors { left: parent.left; right: parent.right; top: current.bottom; bottom: parent.bottom; bottomMargin: 4 }
            spacing: Theme.gap

            Repeater {
                model: figures.days

                WeatherDayTile {
                    required property weatherDayFigures modelData

                    width: (week.width - 6 * week.spacing) / 7
                    height: week.height
                    day: modelData
                }
            }
        }
    }

    PlainText {
        id: footer

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 24
        text: qsTranslate("notch", "Forecast by Open-Meteo. Only the city's coordinates are sent.")
        font.pixelSize: Theme.smallFontSize
        color: Theme.dim
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
