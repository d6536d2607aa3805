import QtQuick
import QtQuick.Window
import Kestrune.Views

/// A window that is light or dark as the desktop, and turned around where the language is.
Window {
    id: window

    required property Appearance appearance

    color: Theme.window.ground
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    Binding {
        target: Theme.window
        property: "dark"
        value: window.appearance.dark
    }
}
