import QtQuick
import Kestrune.Views

/// The song in brief.
HomeBlock {
    id: block

    tool: "nowPlaying"
    title: qsTranslate("notch", "Now Playing")

    NowPlayingPane {
        width: parent.width
        height: implicitHeight
        compact: true
        services: block.services
        screenModel: block.screenModel
        presentation: block.presentation
    }
}
