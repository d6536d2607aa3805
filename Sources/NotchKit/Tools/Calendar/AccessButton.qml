import QtQuick
import Kestrune.Views

/// Asks for access to a calendar or, once that was refused, opens the desktop's privacy page.
TextButton {
    id: button

    required property NotchSurroundings surroundings
    required property int status // A CalendarModel.Access.
    required property string allowTitle
    required property string anchor

    signal allowed

    anchors.left: parent.left
    //: A button that opens the settings of the desktop.
    text: status === CalendarModel.NotDetermined ? allowTitle : qsTranslate("notch", "Open Settings")
    prominent: true
    onClicked: status === CalendarModel.NotDetermined ? button.allowed() : surroundings.openPrivacy(anchor)
}
