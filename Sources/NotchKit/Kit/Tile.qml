import QtQuick
import Kestrune.Views

/// The rounded background of a block or of a group of rows.
Rectangle {
    property Look look: Theme

    color: look.group
    border.color: look.outline
    radius: look.radius
}
