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

    // The desktop asks the user, who has to be at the notch for it: the question comes with the keyboard.
    readonly property bool asks: mirror.state === MirrorModel.Unasked && Window.active
    onAsksChanged: if (asks) mirror.askUser()

    Connections {
        target: pane.mirror
        function onChoicesChanged() {
            if (menu.wanted && menu.allowed && pane.mirror.choices.length > 0)
                menu.open()
        }
    }
    HoverHandler { id: hover }
    SymbolButton {
        id: chooser

        anchors { right: preview.right; top: preview.top; margins: 8 }
        width: 28
        height: 28
        radius: 14
        tipBelow: true
        visible: preview.hasPicture && (hover.hovered || activeFocus || menu.visible)
        symbol: "camera"
        help: qsTranslate("notch", "Choose the camera")
        background: Rectangle {
            radius: chooser.radius
            color: chooser.down ? Theme.ground : Theme.scrim

            FocusRing { visible: chooser.visualFocus }
        }
        onClicked: {
            menu.placeAt(x + (Theme.mirrored ? 0 : width), y + height + 4)
            menu.wanted = true
            pane.mirror.listCameras()
        }
    }
    ContextMenu {
        id: menu

        property bool wanted: false // From the press until the cameras are listed.

        screenModel: pane.screenModel
        entries: pane.mirror.choices
        onOpened: wanted = false
        onChosen: index => pane.mirror.chooseCamera(index)
    }

    PaneMessage {
        anchors.fill: parent
        visible: pane.mirror.state === MirrorModel.Unasked
        symbol: "camera"
        text: qsTranslate("notch", "The desktop will ask you for the camera.")
        actionTitle: qsTranslate("notch", "Turn On Camera")
        onAction: pane.screenModel.keyboardWanted()
    }
    PaneMessage {
        anchors.fill: parent
        visible: pane.mirror.state === MirrorModel.Refused
        symbol: "video.slash"
        text: qsTranslate("notch", "You refused the camera before, and the desktop remembers it.\nAllow it in the desktop’s privacy settings.")
        actionTitle: qsTranslate("notch", "Open Settings")
        onAction: pane.surroundings.openPrivacy("Privacy_Camera")
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
