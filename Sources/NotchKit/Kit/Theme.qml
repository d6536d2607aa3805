pragma Singleton

import QtQuick

/// The notch's look: one accent on black, quiet white for the rest, spacing in steps of four. And that of the windows.
Look {
    /// The language is written from right to left, and so the views are turned around.
    readonly property bool mirrored: Application.layoutDirection === Qt.RightToLeft

    ground: "#000000"
    group: Qt.rgba(1, 1, 1, 0.08)
    outline: "transparent"
    divider: Qt.rgba(1, 1, 1, 0.08)
    popup: "#2c2c2e"
    popupOutline: hovered

    text: Qt.rgba(1, 1, 1, 0.92)
    quiet: Qt.rgba(1, 1, 1, 0.70)
    dim: Qt.rgba(1, 1, 1, 0.55)
    faded: Qt.rgba(1, 1, 1, 0.35)

    accent: "#4da3ff"
    accentText: "#000000"
    control: Qt.rgba(1, 1, 1, 0.08)
    hovered: Qt.rgba(1, 1, 1, 0.14)
    pressed: Qt.rgba(1, 1, 1, 0.20)
    highlighted: Qt.rgba(1, 1, 1, 0.22)
    groove: Qt.rgba(1, 1, 1, 0.14)
    handle: "#ececf0"
    handleOutline: "transparent"

    inset: 16
    radius: 12
    rowInset: 12
    rowHeight: 36
    controlRadius: 8
    controlPadding: 12
    handleSize: 14
    focusGap: 0 // Lists cut off what is outside.
    fontSize: 12
    largeFontSize: 13
    titleFontSize: 14

    disabledOpacity: 0.4
    focusPolicy: Qt.TabFocus // A click leaves the keyboard where it is.

    readonly property color tip: "#3a3a3c" // A tooltip, also in the windows.

    // Only in the notch
    readonly property color good: "#3dcf64"
    readonly property color warning: "#ffa12e"
    readonly property color bad: "#ff5a52"
    readonly property color sun: "#ffd24d"
    readonly property color scrim: Qt.rgba(0, 0, 0, 0.72) // Under a text or a button that lies on a picture.
    readonly property int flare: 14 // the open notch's top radius: its body begins that far in
    readonly property int contentWidth: 760 - 2 * (flare + inset) // of the open notch's 760 points
    readonly property int gap: 8

    /// The windows' look, light or dark as the desktop.
    readonly property WindowLook window: WindowLook {}
}
