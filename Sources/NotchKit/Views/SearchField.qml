import QtQuick
import QtQuick.Templates as T
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
    T.TextField {
        id: field

        anchors.verticalCenter: parent.verticalCenter
        width: 140
        implicitHeight: 24
        leftPadding: 8
        rightPadding: 8
        font.family: Qt.application.font.family
        font.pixelSize: 12
        color: Theme.text
        selectionColor: Theme.accent
        selectedTextColor: "black"
        verticalAlignment: TextInput.AlignVCenter
        selectByMouse: true
        placeholderText: qsTranslate("notch", "Search")
        Accessible.role: Accessible.EditableText
        Accessible.name: placeholderText
        background: Rectangle {
            radius: 8
            color: field.hovered ? Theme.hovered : Theme.faint
            border.width: field.activeFocus ? 1 : 0
            border.color: Theme.accent
        }
        Component.onCompleted: ClipboardGuard.detach(field)
        onPressed: search.screenModel.keyboardWanted()

        Text {
            anchors { fill: parent; leftMargin: 8; rightMargin: 8 }
            visible: field.length === 0 && field.preeditText === ""
            text: field.placeholderText
            font: field.font
            color: Qt.rgba(1, 1, 1, 0.35)
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
