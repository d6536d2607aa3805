import QtQuick
import Kestrune.Views

/// One tool of the row; the highlight of the selected one is drawn by the row.
SymbolButton {
    id: control

    property bool selected: false

    plain: false
    Accessible.role: Accessible.PageTab
    Accessible.selected: selected
    ink: selected || hovered ? look.text : look.dim
}
