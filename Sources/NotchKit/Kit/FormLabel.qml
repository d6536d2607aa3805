import QtQuick
import Kestrune.Views

/// A text of the form.
Text {
    font.pixelSize: Theme.window.fontSize
    color: Theme.window.text
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
