import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// What every field of one line shares: its frame, its placeholder, its menu, and a guarded clipboard.
T.TextField {
    id: field

    property Look look: Theme
    property NotchScreenModel screenModel: null // Of a field of the notch.
    property bool takesMenuKey: true // Else it is for what the field stands for.

    implicitHeight: 26
    leftPadding: 8
    rightPadding: 8
    font.family: Qt.application.font.family
    font.pixelSize: look.fontSize
    color: look.text
    selectionColor: look.accent
    selectedTextColor: look.accentText
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    persistentSelection: menu.engaged
    Keys.onMenuPressed: event => {
        event.accepted = takesMenuKey
        if (takesMenuKey)
            menu.openByKey()
    }
    opacity: enabled ? 1 : look.disabledOpacity
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText
    background: Rectangle {
        radius: field.look.controlRadius
        color: field.hovered ? field.look.hovered : field.look.control

        FocusRing {
            visible: field.activeFocus
            look: field.look
        }
    }
    Component.onCompleted: ClipboardGuard.detach(field)

    TextMenu {
        id: menu

        field: field
        look: field.look
        screenModel: field.screenModel
    }
    PlainText {
        anchors { fill: parent; leftMargin: field.leftPadding; rightMargin: field.rightPadding }
        visible: field.length === 0 && field.preeditText === ""
        text: field.placeholderText
        font: field.font
        color: field.look.faded
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
