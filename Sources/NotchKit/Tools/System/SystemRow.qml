import QtQuick
import Kestrune.Views

/// One figure of the machine.
///
///   | symbol title      value |
///   | bar                     |
Item {
    id: row

    required property var line // A systemLine; undefined while their number shrinks.
    property int textSize: 12

    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.StaticText
    Accessible.name: row.line ? row.line.title + " " + row.line.value : ""

    Column {
        id: column

        width: parent.width
        spacing: 6

        Item {
            width: parent.width
            height: value.implicitHeight

            SectionLabel {
                id: title

                anchors { left: parent.left; right: value.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
                title: row.line?.title ?? ""
                symbol: row.line?.symbol ?? "cpu"
            }
            PlainText {
                id: value

                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                text: row.line?.value ?? ""
                font.pixelSize: row.textSize
                color: Theme.text
                Accessible.ignored: true
            }
        }
        UsageBar {
            width: parent.width
            fraction: row.line?.fraction ?? 0
            fill: row.line?.isBattery ? UsageGauge.color(1 - fraction) : UsageGauge.color(fraction)
        }
    }
}
