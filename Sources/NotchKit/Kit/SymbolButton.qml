import QtQuick
import Kestrune.Views

/// A button with a symbol alone, which its `help` explains.
ButtonBase {
    id: control

    required property string symbol
    required help
    property real size: 16
    property color ink: active ? look.accent : hovered || !plain ? look.text : look.dim

    plain: true
    implicitWidth: 32
    implicitHeight: 28
    contentItem: Symbol {
        name: control.symbol
        size: control.size
        color: control.ink
    }
}
