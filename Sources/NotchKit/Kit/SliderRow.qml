import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A row with a slider and the value's text beside it. With the keyboard, the arrows move it by `stepSize`.
FormRow {
    id: row

    required property real value
    required property string valueText
    property alias from: slider.from
    property alias to: slider.to
    property alias stepSize: slider.stepSize

    /// The user moved it.
    signal modified(real value)

    T.Slider {
        id: slider

        objectName: "slider"
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: 190
        implicitHeight: 26
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        snapMode: T.Slider.SnapAlways
        live: true
        opacity: enabled ? 1 : Theme.window.disabledOpacity
        value: row.value
        Accessible.role: Accessible.Slider
        Accessible.name: row.title + ": " + row.valueText
        onMoved: row.modified(value)

        background: Item {
            Rectangle {
                width: parent.width
                height: 4
                anchors.verticalCenter: parent.verticalCenter
                radius: 2
                color: slider.hovered ? Theme.window.highlighted : Theme.window.pressed

                Rectangle {
                    anchors.left: parent.left
                    width: slider.handle.width / 2 + slider.position * (slider.availableWidth - slider.handle.width)
                    height: parent.height
                    radius: parent.radius
                    color: Theme.window.accent
                }
            }
        }
        handle: Rectangle {
            x: slider.visualPosition * (slider.availableWidth - width)
            anchors.verticalCenter: parent.verticalCenter
            width: 18
            height: 18
            radius: 9
            color: slider.pressed ? Qt.darker(Theme.window.handle, 1.14) : slider.hovered ? "white" : Theme.window.handle
            border { width: 1; color: Theme.window.handleOutline }

            Rectangle {
                anchors { fill: parent; margins: -3 }
                visible: slider.visualFocus
                radius: height / 2
                color: "transparent"
                border { width: 2; color: Theme.window.accent }
            }
        }
    }
    FormLabel {
        anchors.verticalCenter: parent.verticalCenter
        width: 56
        text: row.valueText
        color: Theme.window.dim
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
}
