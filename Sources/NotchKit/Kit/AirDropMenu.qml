import QtQuick
import Kestrune.Views

/// Sends files to another device and, where several can be reached, lets the user choose one at the place
/// where the sending was asked for. Only the menu that asked opens.
ContextMenu {
    id: menu

    required property AirDrop airDrop
    property int request: -1
    readonly property bool wanted: request === airDrop.request && airDrop.choices.length > 0

    /// `x`, `y`: a place within the menu's parent.
    function send(files, x, y) {
        placeAt(x, y)
        request = airDrop.send(files)
    }

    function giveUp() {
        if (wanted)
            airDrop.cancel()
    }

    entries: wanted ? airDrop.choices : []
    onWantedChanged: {
        if (wanted && allowed)
            open()
        else if (wanted)
            giveUp() // Nobody is there to choose.
        else
            close()
    }
    onChosen: index => airDrop.choose(index)
    // Not at once: a chosen entry closes the menu before it is told.
    onClosed: Qt.callLater(giveUp)
    Component.onDestruction: giveUp()
}
