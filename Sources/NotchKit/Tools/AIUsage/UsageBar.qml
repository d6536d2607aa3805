import QtQuick
import Kestrune.Views

/// A horizontal gauge.
Rectangle {
    id: bar

    required property real fraction
    property color fill: UsageGauge.color(fraction)

    implicitWidth: 120
    implicitHeight: 6
    radius: height / 2
    color: Theme.groove
    Accessible.role: Accessible.ProgressBar
    Accessible.name: UsageGauge.percent(fraction)

    Rectangle {
        anchors.left: parent.left
        width: UsageGauge.filled(bar.fraction, bar.width)
        height: parent.height
        radius: parent.radius
        color: bar.fill
    }
}
