import QtQuick
import Kestrune.Views

/// A small alert with one button.
DesktopWindow {
    id: alert

    required property string message
    required property string details

    width: 380
    height: column.implicitHeight + 40
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog | Qt.WindowStaysOnTopHint
    modality: Qt.ApplicationModal
    title: "Kestrune"

    Column {
        id: column

        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 20 }
        spacing: 8

        FormLabel {
            width: parent.width
            text: alert.message
            font.pixelSize: Theme.window.largeFontSize
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
        }
        FormLabel {
            width: parent.width
            text: alert.details
            color: Theme.window.dim
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
        }
        Item {
            width: parent.width
            height: ok.height + 8

            TextButton {
                id: ok

                anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
                width: 120
                look: Theme.window
                prominent: true
                focus: true
                text: qsTranslate("notch", "OK")
                onClicked: alert.close()
                Keys.onEscapePressed: alert.close()
            }
        }
    }
}
