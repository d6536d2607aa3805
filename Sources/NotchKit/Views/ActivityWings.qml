import QtQuick

/// The two wings beside the closed notch: `leading` in the left one, `trailing` in the right one.
Item {
    id: wings

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
