import QtQuick
import Kestrune.Views

/// The two wings beside the closed notch, which are given their tool's `model`: `leading` in the left one, `trailing` in
/// the right one.
Item {
    id: wings

    required property NotchSurroundings surroundings
    required property real wing
    property alias leading: left.data
    property alias trailing: right.data

    Item {
        id: left

        width: wings.wing
        height: parent.height
        anchors.left: parent.left
    }
    Item {
        id: right

        width: wings.wing
        height: parent.height
        anchors.right: parent.right
    }
}
