pragma Singleton

import QtQuick

/// The look of the settings window, light or dark as the desktop.
QtObject {
    property bool dark: true

    readonly property color window: dark ? "#1e1e20" : "#f1f1f4"
    readonly property color group: dark ? "#2a2a2d" : "#ffffff"
    readonly property color divider: dark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0, 0, 0, 0.08)
    readonly property color outline: dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(0, 0, 0, 0.10)
    readonly property color text: dark ? Qt.rgba(1, 1, 1, 0.92) : Qt.rgba(0, 0, 0, 0.88)
    readonly property color dim: dark ? Qt.rgba(1, 1, 1, 0.62) : Qt.rgba(0, 0, 0, 0.62)
    readonly property color accent: dark ? "#4da3ff" : "#0a6ad0"
    readonly property color accentText: dark ? "#000000" : "#ffffff"
    readonly property color control: dark ? Qt.rgba(1, 1, 1, 0.10) : Qt.rgba(0, 0, 0, 0.06)
    readonly property color hovered: dark ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(0, 0, 0, 0.10)
    readonly property color pressed: dark ? Qt.rgba(1, 1, 1, 0.22) : Qt.rgba(0, 0, 0, 0.16)
    readonly property color track: dark ? Qt.rgba(1, 1, 1, 0.24) : Qt.rgba(0, 0, 0, 0.24)
    readonly property color popup: dark ? "#38383c" : "#ffffff"

    readonly property int width: 560
    readonly property int height: 760
    readonly property int inset: 20
    readonly property int rowInset: 14
    readonly property int rowHeight: 40
    readonly property int radius: 10
    readonly property int controlRadius: 6
    readonly property int fontSize: 13
    readonly property int smallFontSize: 11
    readonly property real disabledOpacity: 0.45
}
