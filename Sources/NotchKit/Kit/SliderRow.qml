import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// A row with a slider and the value's text beside it.
FormRow {
    id: row

    required property real value
    required property string valueText
    property alias from: slider.from
    property alias to: slider.to
    property alias stepSize: slider.stepSize

    /// The user moved it.
    signal modified(real value)

    SlimSlider {
        id: slider

        objectName: "slider"
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: 190
        look: row.look
        snapMode: T.Slider.SnapAlways
        live: true
        value: row.value
        Accessible.name: row.title + ": " + row.valueText
        onMoved: row.modified(value)
    }
    FormLabel {
        anchors.verticalCenter: parent.verticalCenter
        width: 56
        look: row.look
        text: row.valueText
        color: look.dim
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
}
