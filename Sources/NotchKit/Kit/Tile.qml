import QtQuick
import Kestrune.Views

/// The rounded background of a block.
Rectangle {
    color: Theme.group
    radius: Theme.radius
}
