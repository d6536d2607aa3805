import QtQuick
import Kestrune.Views

/// A text of the form.
Text {
    font.pixelSize: FormTheme.fontSize
    color: FormTheme.text
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
