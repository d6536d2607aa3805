import QtQuick
import Kestrune.Views

/// The song in the wings of the closed notch: bars that move while it plays.
ActivityWings {
    id: activity

    required property NowPlayingModel model
    readonly property var track: model.track // A PlayingTrack, or undefined.

    Accessible.role: Accessible.StaticText
    Accessible.name: qsTranslate("notch", "Now Playing") + " " + (track ? track.title : "")

    leading: Symbol {
        anchors.centerIn: parent
        name: "music.note"
        size: 14
    }
    trailing: Equalizer {
        anchors.centerIn: parent
        width: 18
        height: 14
        color: Theme.text
        playing: activity.track !== undefined && activity.track.playing
    }
}
