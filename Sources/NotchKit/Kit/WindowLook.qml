import QtQuick

/// The look of windows and of the forms in them, light or dark.
Look {
    property bool dark: true

    ground: dark ? "#1e1e20" : "#f1f1f4"
    group: dark ? "#2a2a2d" : "#ffffff"
    outline: dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(0, 0, 0, 0.10)
    divider: dark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0, 0, 0, 0.08)
    popup: dark ? "#38383c" : "#ffffff"
    popupOutline: highlighted

    text: dark ? Qt.rgba(1, 1, 1, 0.92) : Qt.rgba(0, 0, 0, 0.88)
    quiet: dark ? Qt.rgba(1, 1, 1, 0.75) : Qt.rgba(0, 0, 0, 0.75)
    dim: dark ? Qt.rgba(1, 1, 1, 0.62) : Qt.rgba(0, 0, 0, 0.62)
    faded: dark ? Qt.rgba(1, 1, 1, 0.42) : Qt.rgba(0, 0, 0, 0.42)

    accent: dark ? "#4da3ff" : "#0a6ad0"
    accentText: dark ? "#000000" : "#ffffff"
    control: dark ? Qt.rgba(1, 1, 1, 0.10) : Qt.rgba(0, 0, 0, 0.06)
    hovered: dark ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(0, 0, 0, 0.10)
    pressed: dark ? Qt.rgba(1, 1, 1, 0.22) : Qt.rgba(0, 0, 0, 0.16)
    highlighted: dark ? Qt.rgba(1, 1, 1, 0.24) : Qt.rgba(0, 0, 0, 0.24)
    groove: pressed
    handle: "#f4f4f6"
    handleOutline: dark ? "transparent" : Qt.rgba(0, 0, 0, 0.28)

    inset: 20
    radius: 10
    rowInset: 14
    rowHeight: 40
    controlRadius: 6
    controlPadding: 14
    handleSize: 18
    focusGap: 3
    fontSize: 13
    largeFontSize: 14
    titleFontSize: 16

    disabledOpacity: 0.45
    focusPolicy: Qt.StrongFocus
}
