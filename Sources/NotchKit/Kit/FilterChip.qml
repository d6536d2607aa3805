import QtQuick
import Kestrune.Views

/// One choice of a row of which one is chosen.
ButtonBase {
    id: chip

    implicitWidth: label.implicitWidth + 20
    implicitHeight: 24 // whatever script the text is in
    radius: height / 2
    Accessible.role: Accessible.RadioButton

    contentItem: PlainText {
        id: label

        text: chip.text
        font.pixelSize: chip.look.smallFontSize
        font.weight: Font.DemiBold
        color: chip.look.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
