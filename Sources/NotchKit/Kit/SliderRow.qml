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
        opacity: enabled ? 1 : FormTheme.disabledOpacity
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
                color: slider.hovered ? FormTheme.track : FormTheme.pressed

                Rectangle {
                    anchors.left: parent.left
                    width: slider.handle.width / 2 + slider.position * (slider.availableWidth - slider.handle.width)
                    height: parent.height
                    radius: parent.radius
                    color: FormTheme.accent
                }
            }
        }
        handle: Rectangle {
            x: slider.visualPosition * (slider.availableWidth - width)
            anchors.verticalCenter: parent.verticalCenter
            width: 18
            height: 18
            radius: 9
            color: slider.pressed ? "#d6d6da" : slider.hovered ? "#ffffff" : "#f4f4f6"
            border { width: 1; color: FormTheme.dark ? "transparent" : Qt.rgba(0, 0, 0, 0.28) }

            Rectangle {
                anchors { fill: parent; margins: -3 }
                visible: slider.visualFocus
                radius: height / 2
                color: "transparent"
                border { width: 2; color: FormTheme.accent }
            }
        }
    }
    FormLabel {
        anchors.verticalCenter: parent.verticalCenter
        width: 56
        text: row.valueText
        color: FormTheme.dim
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
}
