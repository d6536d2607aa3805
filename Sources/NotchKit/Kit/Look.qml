import QtQuick

/// What views are drawn with, by role. `Theme` is the notch's look, `Theme.window` that of the windows.
QtObject {
    // Surfaces
    property color ground // Behind everything.
    property color group // A tile, a group of rows.
    property color outline // A group's edge.
    property color divider // Between the rows of a group.
    property color popup // A menu, a list that drops down.
    property color popupOutline

    // Texts and symbols
    property color text
    property color quiet // A text that stands alone.
    property color dim // What stands beside a text or below it.
    property color faded // A placeholder.

    // Controls
    property color accent // What is chosen, filled, or has the keyboard.
    property color accentText // On the accent.
    property color control
    property color hovered
    property color pressed
    property color highlighted // The one that is on; what moves in a groove.
    property color groove // What a gauge or a slider fills.
    property color handle // What is dragged along it.
    property color handleOutline

    // Points
    property int inset // From the edge to the content.
    property int radius // A group's.
    property int rowInset // From its edge to what is in it.
    property int rowHeight
    property int controlRadius
    property int controlPadding // From a button's edge to its text.
    property int handleSize
    property int focusGap // From a control to its focus ring.
    property int tinyFontSize: 10
    property int smallFontSize: 11
    property int fontSize
    property int largeFontSize
    property int titleFontSize

    property real disabledOpacity
    property int focusPolicy // What gives a button the keyboard.
}
