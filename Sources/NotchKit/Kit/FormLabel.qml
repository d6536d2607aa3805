import QtQuick
import Kestrune.Views

/// A text of the form.
PlainText {
    property Look look: Theme.window

    font.pixelSize: look.fontSize
    color: look.text
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
