import QtQuick
import Kestrune.Views

/// The rounded background of a block.
Rectangle {
    color: Theme.faint
    radius: Theme.tileRadius
}
