import QtQuick
import Kestrune.Views

/// One tool of the row; the highlight of the selected one is drawn by the row.
ButtonBase {
    id: control

    required property string symbol
    property bool selected: false

    implicitHeight: 28
    Accessible.role: Accessible.PageTab
    Accessible.selected: selected
    contentItem: Symbol {
        name: control.symbol
        size: 16
        color: control.selected || control.hovered ? Theme.text : Theme.dim
    }
}
