import QtQuick
import Kestrune.Views

/// The song and what can be done with it, or why there is none; `compact` for a Home block.
Pane {
    id: pane

    required property NowPlayingModel model
    property bool compact: false
    readonly property NowPlayingModel player: model
    readonly property bool known: player.track !== undefined
    //: %1 is the name of the program.
    readonly property string allowText: Format.namingHost(qsTranslate("notch", "Allow %1 to control Music or Spotify in\nSystem Settings › Privacy & Security › Automation."))
    readonly property string emptyText: qsTranslate("notch", "Play something in Music or Spotify\nand it shows up here.")

    implicitHeight: known ? song.implicitHeight : brief.implicitHeight

    Loader {
        id: song

        anchors.verticalCenter: parent.verticalCenter
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, 560)
        active: pane.known
        sourceComponent: PlayerView {
            model: pane.player
            compact: pane.compact
        }
    }
    PaneMessage {
        anchors.fill: parent
        visible: !pane.compact && !pane.known && pane.player.permissionDenied
        symbol: "music.note"
        text: pane.allowText
        actionTitle: qsTranslate("notch", "Open Settings")
        onAction: pane.surroundings.openPrivacy("Privacy_Automation")
    }
    PaneMessage {
        anchors.fill: parent
        visible: !pane.compact && !pane.known && !pane.player.permissionDenied
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
        PlainText {
            width: parent.width
            text: (pane.player.permissionDenied ? pane.allowText : pane.emptyText).replace("\n", " ")
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
    }
}
