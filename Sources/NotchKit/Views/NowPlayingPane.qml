import QtQuick
import Kestrune.Views

/// The song and what can be done with it, or why there is none; `compact` for a Home block.
Pane {
    id: pane

    property bool compact: false
    readonly property NowPlayingModel model: services.nowPlaying
    readonly property bool known: model.track !== undefined
    readonly property string allowText: Format.namingHost(qsTranslate("notch", "Allow %@ to control Music or Spotify in\nSystem Settings › Privacy & Security › Automation."))
    readonly property string emptyText: qsTranslate("notch", "Play something in Music or Spotify\nand it shows up here.")

    implicitHeight: known ? player.implicitHeight : brief.implicitHeight

    Loader {
        id: player

        anchors.verticalCenter: parent.verticalCenter
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, 560)
        active: pane.known
        sourceComponent: PlayerView {
            model: pane.model
            compact: pane.compact
        }
    }
    PaneMessage {
        anchors.fill: parent
        visible: !pane.compact && !pane.known && pane.model.permissionDenied
        symbol: "music.note"
        text: pane.allowText
        actionTitle: qsTranslate("notch", "Open Settings")
        onAction: pane.services.openPrivacy("Privacy_Automation")
    }
    PaneMessage {
        anchors.fill: parent
        visible: !pane.compact && !pane.known && !pane.model.permissionDenied
        symbol: "music.note"
        text: pane.emptyText
    }
    Column {
        id: brief

        width: parent.width
        visible: pane.compact && !pane.known
        spacing: 8

        SectionLabel {
            title: qsTranslate("notch", "Now Playing")
            symbol: "music.note"
        }
        Text {
            width: parent.width
            text: (pane.model.permissionDenied ? pane.allowText : pane.emptyText).replace("\n", " ")
            font.pixelSize: 12
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
    }
}
