import QtQuick
import Kestrune.Views

/// Asks for the weather's place.
FocusScope {
    id: editor

    required property WeatherModel weather
    required property NotchScreenModel screenModel
    readonly property alias field: city

    implicitWidth: column.width
    implicitHeight: column.height

    Column {
        id: column

        spacing: 12

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "cloud.sun"
            size: 30
            color: Theme.dim
        }
        Row {
            spacing: Theme.gap

            Item { // balances the spinner
                width: 16
                height: 1
            }
            LineField {
                id: city

                width: 220
                implicitHeight: 28
                focus: true
                screenModel: editor.screenModel
                //: What the empty field for the name of a city says.
                placeholderText: qsTranslate("notch", "City")
                onAccepted: editor.weather.search(text)
            }
            TextButton {
                text: qsTranslate("notch", "Search")
                prominent: true
                enabled: city.text.trim() !== ""
                onClicked: editor.weather.search(city.text)
            }
            TextButton {
                symbol: "location"
                text: qsTranslate("notch", "Use my location")
                onClicked: editor.weather.useCurrentLocation()
            }
            Spinner {
                anchors.verticalCenter: parent.verticalCenter
                running: editor.weather.searching || editor.weather.locating
            }
        }
    }
}
