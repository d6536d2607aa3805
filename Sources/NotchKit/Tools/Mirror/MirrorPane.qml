import QtQuick
import Kestrune.Views

/// The camera's picture, or why there is none.
Pane {
    id: pane

    required property MirrorModel model
    readonly property MirrorModel mirror: model

    Rectangle {
        anchors.fill: preview
        visible: preview.visible && !preview.hasPicture
        radius: preview.radius
        color: Theme.group
    }
    CameraPreview {
        id: preview

        anchors { fill: parent; bottomMargin: Theme.gap }
        visible: pane.mirror.state === MirrorModel.Picture || pane.mirror.state === MirrorModel.Waiting
        mirror: pane.mirror
        radius: Theme.radius
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTranslate("notch", "Mirror")
    }

    PaneMessage {
        anchors.fill: parent
        visible: pane.mirror.state === MirrorModel.NoCamera
        symbol: "video.slash"
        text: qsTranslate("notch", "No camera found.")
    }
    PaneMessage {
        anchors.fill: parent
        visible: pane.mirror.state === MirrorModel.NoAccess
        symbol: "video.slash"
        //: %1 is the name of the program.
        text: Format.namingHost(qsTranslate("notch", "Allow %1 to use the camera in\nSystem Settings › Privacy & Security › Camera."))
        actionTitle: qsTranslate("notch", "Open Settings")
        onAction: pane.surroundings.openPrivacy("Privacy_Camera")
    }
}
