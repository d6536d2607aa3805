import QtQuick
import Kestrune.Views

/// A greeting that fits the hour, and the date.
HomeBlock {
    id: block

    readonly property date now: shown ? surroundings.now : new Date(0)
    readonly property int hour: now.getHours()

    title: greeting.text

    Column {
        width: parent.width
        spacing: 2

        PlainText {
            id: greeting

            width: parent.width
            text: block.hour < 5 || block.hour >= 22 ? qsTranslate("notch", "Good night")
                : block.hour < 12 ? qsTranslate("notch", "Good morning")
                : block.hour < 18 ? qsTranslate("notch", "Good afternoon")
                : qsTranslate("notch", "Good evening")
            font.pixelSize: 18
            font.weight: Font.DemiBold
            color: Theme.text
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
        PlainText {
            width: parent.width
            text: block.now.toLocaleDateString(Qt.locale(), Locale.LongFormat)
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
    }
}
