import QtQuick
import Kestrune.Views

/// Asks for access to a calendar or, once that was refused, opens the desktop's privacy page.
TextButton {
    id: button

    required property NotchSurroundings surroundings
    required property int status
    required property string allowTitle
    required property string anchor

    signal allowed

    anchors.left: parent.left
    //: A button that opens the settings of the desktop.
    text: status === 0 ? allowTitle : qsTranslate("notch", "Open Settings")
    prominent: true
    onClicked: status === 0 ? button.allowed() : surroundings.openPrivacy(anchor)
}
