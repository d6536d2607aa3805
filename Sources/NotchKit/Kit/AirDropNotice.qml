import QtQuick
import Kestrune.Views

/// Says for a moment what came of the sending that `menu` asked for.
Rectangle {
    id: notice

    required property AirDropMenu menu
    readonly property string said: menu.request === menu.airDrop.request ? menu.airDrop.notice : ""

    visible: said !== ""
    z: 50
    width: label.width + 24
    height: 28
    radius: height / 2
    color: Theme.tip
    Accessible.role: Accessible.AlertMessage
    Accessible.name: said

    PlainText {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, notice.parent.width - 40)
        text: notice.said
        color: Theme.text
        font.pixelSize: Theme.fontSize
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
    Timer {
        interval: 6000
        running: notice.said !== ""
        onTriggered: notice.menu.airDrop.dismiss()
    }
}
