import QtQuick
import Kestrune.Views

/// One symbol of the icon font by its name.
PlainText {
    required property string name
    property real size: 16

    text: Symbols.glyph(name)
    font.family: Symbols.family
    font.pixelSize: size
    color: Theme.text
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
