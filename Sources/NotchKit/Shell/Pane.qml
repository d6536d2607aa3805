import QtQuick
import Kestrune.Views

/// What every tool's pane is given, beside its `model` where the tool has one. The pane has the keyboard's focus when the
/// notch has the keyboard.
FocusScope {
    required property NotchSurroundings surroundings
    required property NotchScreenModel screenModel
    required property NotchPresentation presentation

    focus: true
}
