pragma Singleton

import QtQuick

/// The look: one accent on black, quiet white for the rest, spacing in steps of four.
QtObject {
    /// The language is written from right to left, and so the views are turned around.
    readonly property bool mirrored: Application.layoutDirection === Qt.RightToLeft

    readonly property color accent: "#4da3ff"
    readonly property color text: Qt.rgba(1, 1, 1, 0.92)
    readonly property color good: "#3dcf64"
    readonly property color warning: "#ffa12e"
    readonly property color bad: "#ff5a52"
    readonly property color sun: "#ffd24d"
    readonly property color dim: Qt.rgba(1, 1, 1, 0.55)
    readonly property color faint: Qt.rgba(1, 1, 1, 0.08)
    readonly property color hovered: Qt.rgba(1, 1, 1, 0.14)
    readonly property color pressed: Qt.rgba(1, 1, 1, 0.20)
    readonly property color highlighted: Qt.rgba(1, 1, 1, 0.22)

    readonly property int inset: 16
    readonly property int flare: 14 // the open notch's top radius: its body begins that far in
    readonly property int contentWidth: 760 - 2 * (flare + inset) // of the open notch's 760 points
    readonly property int gap: 8
    readonly property int tileRadius: 12
    readonly property int buttonRadius: 8
}
