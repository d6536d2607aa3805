import QtQuick
import Kestrune.Views

/// What every tool's pane is given. The pane has the keyboard's focus when the notch has the keyboard.
FocusScope {
    required property NotchServices services
    required property NotchScreenModel screenModel
    required property NotchPresentation presentation

    focus: true
}
