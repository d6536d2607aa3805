import QtQuick
import Kestrune.Views

/// A song with its cover and its controls.
///
///   | cover | title                 |
///   |       | artist                |
///   |       | progress              |
///   |       | previous, pause, next |
Row {
    id: view

    required property NowPlayingModel model
    required property bool compact

    // A PlayingTrack, or undefined. The song stays as it was while the view goes.
    property var track: model.track

    spacing: compact ? 12 : 24

    Rectangle {
        id: cover

        width: view.compact ? 78 : 130
        height: width
        radius: view.compact ? 12 : 18
        color: Theme.group

        Symbol {
            anchors.centerIn: parent
            visible: view.model.artwork === undefined
            name: "music.note"
            size: view.compact ? 32 : 52
            color: Theme.dim
        }
        Picture {
            anchors.fill: parent
            image: view.model.artwork
            radius: parent.radius
        }
    }

    Column {
        width: parent.width - cover.width - parent.spacing
        anchors.verticalCenter: parent.verticalCenter
        spacing: 5

        PlainText {
            width: parent.width
            text: view.track ? view.track.title : ""
            font.pixelSize: view.compact ? 13 : 20
            font.weight: Font.DemiBold
            color: Theme.text
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            wrapMode: view.compact ? Text.NoWrap : Text.Wrap
            maximumLineCount: view.compact ? 1 : 2
        }
        PlainText {
            width: parent.width
            visible: text !== ""
            text: view.track ? view.track.artist : ""
            font.pixelSize: view.compact ? 12 : 14
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            maximumLineCount: 1
        }
        ProgressBar {
            width: parent.width
            height: view.compact ? 6 : 30
            timed: !view.compact
            track: view.track
            onSeek: position => view.model.seek(position)
        }
        Row {
            readonly property real overhang: (skip.width - 17) / 2

            x: Theme.mirrored ? parent.width - width + overhang : -overhang
            LayoutMirroring.enabled: false
            spacing: view.compact ? 0 : 8

            component PlayerButton: SymbolButton {
                size: 17
                ink: Theme.text
                implicitWidth: 36
                implicitHeight: view.compact ? 26 : 32
            }

            PlayerButton {
                id: skip

                //: The previous song.
                help: qsTranslate("notch", "Previous")
                symbol: "backward.fill"
                onClicked: view.model.previous()
            }
            PlayerButton {
                help: view.track && view.track.playing ? qsTranslate("notch", "Pause") : qsTranslate("notch", "Play")
                symbol: view.track && view.track.playing ? "pause.fill" : "play.fill"
                size: view.compact ? 18 : 24
                onClicked: view.model.playPause()
            }
            PlayerButton {
                //: The next song.
                help: qsTranslate("notch", "Next")
                symbol: "forward.fill"
                onClicked: view.model.next()
            }
        }
    }
}
