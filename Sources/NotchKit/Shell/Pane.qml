import QtQuick
import Kestrune.Views

/// What every tool's pane is given, beside its `model` where the tool has one. Each time it comes on screen it has the
/// keyboard's focus, and looks as if it were made anew.
FocusScope {
    id: pane

    required property NotchSurroundings surroundings
    required property NotchScreenModel screenModel
    required property NotchPresentation presentation

    /// What has the keyboard first; null for nothing yet, and Tab reaches the first control.
    property Item first: null
    /// Outlives the choice of another tool, for what is typed in it and can be undone.
    property bool kept: false

    /// It is on screen from now on: what was only passing is over, and the newest is in sight.
    signal presented

    function present() {
        presented()
        takeKeyboard()
    }

    function takeKeyboard() {
        const item = first ? first : rest
        item.forceActiveFocus()
    }

    focus: true

    Item {
        id: rest

        activeFocusOnTab: activeFocus // Tab goes on from here, but does not come here.
    }
}
