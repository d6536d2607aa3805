import QtQuick
import Kestrune.Views

/// The fresh screenshot in the wings of the closed notch.
ActivityWings {
    id: activity

    required property CapturesModel model
    readonly property CapturesModel captures: model
    // A QImage, or undefined.
    readonly property var thumbnail: captures.fresh ? captures.thumbnails[captures.fresh.id] : undefined

    Accessible.role: Accessible.StaticText
    Accessible.name: qsTranslate("notch", "Screenshots") + " " + (captures.fresh ? captures.fresh.name : "")

    leading: [
        Symbol {
            anchors.centerIn: parent
            visible: activity.thumbnail === undefined
            name: "camera.viewfinder"
            size: 12
        },
        Picture {
            anchors.centerIn: parent
            width: Math.round(height * 1.6)
            height: Math.min(22, parent.height - 8)
            image: activity.thumbnail
            radius: 4

            // A dark picture would have no edge on the black notch.
            Rectangle {
                anchors.fill: parent
                visible: activity.thumbnail !== undefined
                radius: parent.radius
                color: "transparent"
                border.color: Theme.highlighted
            }
        }
    ]
    trailing: Symbol {
        anchors.centerIn: parent
        visible: activity.thumbnail !== undefined
        name: "camera.viewfinder"
        size: 14
        color: Theme.dim
    }
}
