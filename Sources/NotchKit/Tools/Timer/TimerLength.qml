import QtQuick
import Kestrune.Views

/// The remaining time, large. While nothing runs it is the length, which the buttons beside it, the wheel and the keys
/// change, and which can be typed.
///
///   | −   25:00   + |
Item {
    id: length

    required property TimerModel timer
    required property NotchSurroundings surroundings
    required property NotchScreenModel screenModel
    property bool shown: true
    readonly property bool idle: !timer.isActive
    property bool editing: false
    property string before // The length before it was typed.

    function edit(text) {
        before = timer.format(timer.duration)
        field.text = text
        timer.setLength(text)
        editing = true
        field.forceActiveFocus()
        screenModel.keyboardWanted()
    }

    function finish() {
        editing = false
        forceActiveFocus()
    }

    implicitWidth: Math.max(face.width, 200) + 2 * (lower.width + 8)
    implicitHeight: face.height
    activeFocusOnTab: true
    onEditingChanged: if (!editing) field.focus = false // Or the keys would go on to a field that is not shown.
    onIdleChanged: if (!idle && editing) finish()
    Accessible.role: Accessible.SpinBox
    Accessible.name: qsTranslate("notch", "Timer") + " " + timer.format(timer.duration)
    Accessible.onIncreaseAction: timer.adjust(1)
    Accessible.onDecreaseAction: timer.adjust(-1)

    Keys.onUpPressed: if (!editing) timer.adjust(1)
    Keys.onDownPressed: if (!editing) timer.adjust(-1)
    Keys.onSpacePressed: timer.isRunning ? timer.pause() : timer.start()
    Keys.onEscapePressed: event => {
        event.accepted = editing
        if (!editing)
            return
        timer.setLength(before)
        finish()
    }
    Keys.onPressed: event => {
        const isPage = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown
        event.accepted = idle && !editing && (isPage || timer.isLength(event.text))
        if (event.accepted && isPage)
            timer.adjust(event.key === Qt.Key_PageUp ? 10 : -10)
        else if (event.accepted)
            edit(event.text)
    }

    FocusRing {
        visible: length.activeFocus && length.idle && !length.editing
        radius: Theme.radius
        anchors { leftMargin: lower.width + 4; rightMargin: raise.width + 4 }
    }
    TimerFace {
        id: face

        anchors.horizontalCenter: parent.horizontalCenter
        visible: !length.editing
        timer: length.timer
        surroundings: length.surroundings
        size: 64
        shown: length.shown
    }
    MouseArea {
        property real turned // Since the last whole step of the wheel.

        anchors { top: parent.top; bottom: parent.bottom; left: lower.right; right: raise.left }
        enabled: length.idle
        cursorShape: enabled ? Qt.IBeamCursor : Qt.ArrowCursor
        onClicked: {
            length.edit(length.timer.format(length.timer.duration))
            field.selectAll()
        }
        onWheel: event => {
            turned += event.angleDelta.y / 120
            const steps = Math.trunc(turned)
            turned -= steps
            length.timer.adjust(steps)
        }
    }
    LineField {
        id: field

        anchors.centerIn: parent
        width: 180
        implicitHeight: 52
        visible: length.editing
        screenModel: length.screenModel
        font.pixelSize: 32
        horizontalAlignment: TextInput.AlignHCenter
        //: What the empty field for the length of a timer says.
        placeholderText: qsTranslate("notch", "Minutes")
        maximumLength: 8
        inputMethodHints: Qt.ImhPreferNumbers
        onTextEdited: length.timer.setLength(text)
        onAccepted: {
            length.timer.start()
            length.finish()
        }
        onActiveFocusChanged: if (!activeFocus) length.editing = false
    }
    SymbolButton {
        id: lower

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        visible: length.idle
        enabled: length.timer.duration > 60
        autoRepeat: true
        symbol: "minus"
        size: 20
        help: qsTranslate("notch", "One minute less")
        onClicked: length.timer.adjust(-1)
    }
    SymbolButton {
        id: raise

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: length.idle
        enabled: length.timer.duration < 3 * 3600
        autoRepeat: true
        symbol: "plus"
        size: 20
        help: qsTranslate("notch", "One minute more")
        onClicked: length.timer.adjust(1)
    }
}
