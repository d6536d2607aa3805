import QtQuick
import Kestrune.Views

/// A symbol button of the header.
ButtonBase {
    id: control

    required property string symbol

    plain: true
    tipBelow: true
    implicitWidth: 32
    implicitHeight: 28
    contentItem: Symbol {
        name: control.symbol
        size: 16
        color: control.active ? Theme.accent : control.hovered ? Theme.text : Theme.dim
    }
}
