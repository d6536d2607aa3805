import QtQuick
import Kestrune.Views

/// Seven days as vertical bars, oldest on the left, with their letters; the days' numbers are in the tips.
Row {
    id: bars

    required property list<usageDay> days

    height: 68
    spacing: 6

    Repeater {
        model: bars.days

        Item {
            id: day

            required property usageDay modelData
            required property int index

            readonly property bool isToday: index === bars.days.length - 1

            width: (bars.width - bars.spacing * (bars.days.length - 1)) / bars.days.length
            height: bars.height
            Accessible.role: Accessible.StaticText
            Accessible.name: modelData.help

            Rectangle {
                anchors { left: parent.left; right: parent.right; bottom: letter.top; bottomMargin: 4 }
                height: Math.max(3, day.modelData.fraction * (bars.height - letter.height - 4))
                radius: 3
                color: day.isToday ? Theme.accent : area.containsMouse ? Theme.dim : Theme.faded
            }
            PlainText {
                id: letter

                anchors { bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
                text: day.modelData.letter
                font.pixelSize: Theme.tinyFontSize
                color: day.isToday ? Theme.text : Theme.dim
                Accessible.ignored: true
            }
            MouseArea {
                id: area

                anchors.fill: parent
                hoverEnabled: true
                acceptedButtons: Qt.NoButton
            }
            Loader {
                active: area.containsMouse
                sourceComponent: HelpTip {
                    text: day.modelData.help
                    anchor: day
                }
            }
        }
    }
}
