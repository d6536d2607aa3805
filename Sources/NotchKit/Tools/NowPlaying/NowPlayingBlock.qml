import QtQuick
import Kestrune.Views

/// The song in brief.
HomeBlock {
    id: block

    required property NowPlayingModel model

    title: qsTranslate("notch", "Now Playing")

    NowPlayingPane {
        width: parent.width
        height: implicitHeight
        compact: true
        model: block.model
        surroundings: block.surroundings
        screenModel: block.screenModel
        presentation: block.presentation
    }
}
