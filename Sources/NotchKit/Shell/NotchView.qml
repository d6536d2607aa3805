import QtQuick
import Kestrune.Views

/// The root view of one display's panel: the notch shape, and in it the closed or the open content. It is
/// larger than the notch; all around it is transparent.
FocusScope {
    id: view

    required property NotchScreenModel screenModel
    required property NotchServices services
    required property NotchPresentation presentation
    /// What the open notch shows is made although it is closed, a little at a time.
    property bool prepared: false

    readonly property bool expanded: screenModel.expanded
    readonly property size notchSize: screenModel.geometry.shapeSize(expanded, services.hasActivity)
    readonly property size closedSize: screenModel.geometry.notchSize
    readonly property size wingedSize: screenModel.geometry.shapeSize(false, true)
    readonly property size openSize: screenModel.geometry.shapeSize(true, false)
    readonly property bool housing: screenModel.geometry.hasHardwareNotch
    readonly property real response: expanded ? 0.42 : 0.34
    readonly property real damping: expanded ? 0.8 : 0.92
    // Between the flares.
    readonly property real bodyWidth: shapeWidth.value - 2 * topRadius.value
    readonly property real bodyLeft: (width - bodyWidth) / 2

    focus: true
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: screenModel.closeWanted()
    onExpandedChanged: if (!expanded) closing.forceActiveFocus()

    component NotchSpring: SpringValue {
        response: view.response
        dampingFraction: view.damping
    }

    NotchSpring { id: shapeWidth; target: view.notchSize.width }
    NotchSpring { id: shapeHeight; target: view.notchSize.height }
    NotchSpring { id: topRadius; target: view.expanded ? Theme.flare : 6 }
    NotchSpring { id: bottomRadius; target: view.expanded ? 30 : view.housing ? 10 : 14 }
    NotchSpring { id: openness; target: view.expanded ? 1 : 0; precision: 0.002 }

    // Only a compositor shows it: without one the window ends at the notch's outline.
    BorderImage {
        readonly property int blur: 40

        x: view.bodyLeft - blur
        y: shape.notchHeight - height + blur + 4
        width: view.bodyWidth + 2 * blur
        height: shape.notchHeight + 2 * blur
        border { left: 70; right: 70; top: 70; bottom: 70 }
        // Not at the start: to read a picture, the plugins of all formats are loaded first.
        source: view.prepared || view.expanded || openness.value > 0.01 ? "shadow.png" : ""
        asynchronous: true
        visible: opacity > 0.01
        opacity: Math.max(0, Math.min(1, openness.value))
    }

    NotchShape {
        id: shape

        anchors.fill: parent
        notchWidth: shapeWidth.value
        notchHeight: shapeHeight.value
        topRadius: topRadius.value
        bottomRadius: bottomRadius.value
    }

    ClosedActivity {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(view.bodyWidth, view.wingedSize.width)
        height: view.closedSize.height
        wing: Math.max(0, (width - view.closedSize.width) / 2)
        opacity: Math.max(0, 1 - openness.value * 4)
        visible: opacity > 0 && view.services.hasActivity
        services: view.services
        presentation: view.presentation
    }

    FileDropArea {
        anchors.fill: parent
        enabled: view.presentation.offeredTools.indexOf("shelf") >= 0
        refused: view.presentation.shelf.refusesDrag
        onMoved: view.presentation.shelf.followDrag()
        onTargetedChanged: view.screenModel.dropTargeted = targeted
        onFilesDropped: {
            view.presentation.takeDrop()
        }
    }

    // No larger than the open notch, past which it springs: the content is drawn anew with each change of its clip.
    Item {
        id: window

        x: (view.width - width) / 2
        width: Math.max(0, Math.min(view.bodyWidth, view.openSize.width - 2 * Theme.flare))
        height: Math.min(shape.notchHeight, view.openSize.height)
        clip: true
        visible: openness.value > 0.02
        opacity: Math.max(0, Math.min(1, (openness.value - 0.3) / 0.5))

        Loader {
            active: false
            x: (parent.width - width) / 2
            width: Theme.contentWidth
            height: view.openSize.height
            focus: true
            sourceComponent: ExpandedContent {
                focus: true
                screenModel: view.screenModel
                services: view.services
                presentation: view.presentation
            }

            // Made when the notch opens first, or a little at a time before, and kept. What is half made when it opens
            // is made anew at once.
            readonly property bool opens: view.expanded
            readonly property bool wanted: opens || view.prepared

            function make() {
                if (opens && status === Loader.Loading)
                    active = false
                if (active || !wanted)
                    return
                asynchronous = !opens
                active = true
            }

            onOpensChanged: make()
            onWantedChanged: make()
            onLoaded: if (!opens) closing.forceActiveFocus()
            Component.onCompleted: make()
        }

        // What closes looks as it did, and takes neither clicks nor keys any more.
        MouseArea {
            id: closing

            anchors.fill: parent
            visible: !view.expanded
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: event => event.accepted = true
            Keys.onPressed: event => event.accepted = true
        }
    }
}
