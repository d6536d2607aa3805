import QtQuick
import Kestrune.Views

/// One control of a player.
ButtonBase {
    id: control

    required property string symbol
    required property bool compact
    property real size: 17

    plain: true
    implicitWidth: 36
    implicitHeight: compact ? 26 : 32
    contentItem: Symbol {
        name: control.symbol
        size: control.size
        color: Theme.text
    }
}
