import QtQuick
import Kestrune.Views

/// A search symbol and a plain field of one line.
Row {
    id: search

    required property NotchScreenModel screenModel
    property alias text: field.text
    property alias field: field

    spacing: 6

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 14
        color: field.activeFocus ? Theme.text : Theme.dim
    }
    LineField {
        id: field

        anchors.verticalCenter: parent.verticalCenter
        width: 140
        screenModel: search.screenModel
        //: What an empty search field says, and the button that looks for a city.
        placeholderText: qsTranslate("notch", "Search")
    }
}
