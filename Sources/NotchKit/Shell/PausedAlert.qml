import QtQuick
import QtQuick.Window
import Kestrune.Views

/// A small alert with one button.
Window {
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
    color: "#1c1c1e"
    title: "Kestrune"

    Column {
        id: column

        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 20 }
        spacing: 8

        Text {
            width: parent.width
            text: alert.message
            font.pixelSize: 14
            font.weight: Font.DemiBold
            color: Theme.text
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
        }
        Text {
            width: parent.width
            text: alert.details
            font.pixelSize: 12
            color: Theme.dim
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
                prominent: true
                focus: true
                text: qsTranslate("notch", "OK")
                onClicked: alert.close()
                Keys.onEscapePressed: alert.close()
            }
        }
    }
}
