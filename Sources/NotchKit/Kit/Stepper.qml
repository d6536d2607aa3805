import QtQuick
import Kestrune.Views

/// A value with a button to lower and one to raise it. With the keyboard, the arrows step.
///
///   | text   − | + |
FocusScope {
    id: stepper

    required property string text
    required property string lowerHelp
    required property string raiseHelp
    property real value: 0
    property real from: 0
    property real to: 100
    property real stepSize: 1
    property Look look: Theme
    property real textWidth: label.implicitWidth

    /// The user chose another value, which lies between `from` and `to`.
    signal modified(real value)

    function step(count) {
        const next = Math.max(from, Math.min(to, value + count * stepSize))
        if (next !== value)
            modified(next)
    }

    implicitWidth: textWidth + 8 + buttons.implicitWidth
    implicitHeight: 28
    opacity: enabled ? 1 : stepper.look.disabledOpacity
    Accessible.role: Accessible.SpinBox
    Accessible.name: text
    Accessible.onIncreaseAction: step(1)
    Accessible.onDecreaseAction: step(-1)
    Keys.onUpPressed: step(1)
    Keys.onRightPressed: step(Theme.mirrored ? -1 : 1)
    Keys.onDownPressed: step(-1)
    Keys.onLeftPressed: step(Theme.mirrored ? 1 : -1)

    PlainText {
        id: label

        anchors { right: buttons.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
        text: stepper.text
        font.pixelSize: stepper.look.smallFontSize
        color: stepper.look.dim
        Accessible.ignored: true
    }
    Row {
        id: buttons

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: 2

        component StepButton: SymbolButton {
            look: stepper.look
            plain: false
            implicitWidth: 26
            implicitHeight: 24
            radius: 6
            size: 13
            autoRepeat: true
        }

        StepButton {
            symbol: "minus"
            help: stepper.lowerHelp
            focus: true
            enabled: stepper.value > stepper.from
            onClicked: stepper.step(-1)
        }
        StepButton {
            symbol: "plus"
            help: stepper.raiseHelp
            enabled: stepper.value < stepper.to
            onClicked: stepper.step(1)
        }
    }
}
