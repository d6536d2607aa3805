import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// The settings: the notch's own, the application's, and the suite's card below them.
DesktopWindow {
    id: window

    required property NotchSettings settings
    required property NotchController controller
    required property Updater updater
    required property QtObject app // `launchAtLogin`, `openSuitePage()`

    /// For the desktop's panels and the window's own title, which a small display must show as well.
    readonly property int roomForOthers: 84

    width: 560
    height: Math.min(760, Screen.height - roomForOthers)
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    title: qsTranslate("notch", "Kestrune Settings")

    /// Scrolls to what got the keyboard.
    function reveal(item) {
        if (!item || !content.contains(item.mapToItem(content, 1, 1)))
            return
        const margin = Theme.window.rowHeight
        const top = item.mapToItem(content, 0, 0).y
        const lowest = Math.max(top + item.height + margin - scroller.height, 0)
        scroller.contentY = Math.min(Math.max(scroller.contentY, lowest), Math.max(top - margin, 0))
    }

    onActiveFocusItemChanged: reveal(activeFocusItem)

    FocusScope {
        anchors.fill: parent
        focus: true
        Keys.onEscapePressed: window.close()

        Flickable {
            id: scroller

            anchors.fill: parent
            contentHeight: content.height + 2 * Theme.window.inset
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ScrollBar {
                look: Theme.window
                implicitWidth: 12
                padding: 3
            }

            Column {
                id: content

                x: Theme.window.inset
                y: Theme.window.inset
                width: scroller.width - 2 * Theme.window.inset
                spacing: 20

                NotchSettingsView {
                    width: parent.width
                    settings: window.settings
                    controller: window.controller
                }
                FormSection {
                    width: parent.width
                    title: "Kestrune"
                    footer: window.updater.managed
                        ? qsTranslate("notch", "This copy gets its updates with its package, or from whoever built it.")
                        : qsTranslate("notch", "Kestrune then looks once a day, downloads what is new and asks before it is installed.")

                    SwitchRow {
                        title: qsTranslate("notch", "Open Kestrune at login")
                        first: true
                        on: window.app.launchAtLogin
                        onModified: on => window.app.launchAtLogin = on
                    }
                    SwitchRow {
                        title: qsTranslate("notch", "Install updates automatically")
                        enabled: !window.updater.managed
                        on: window.updater.automaticallyDownloadsUpdates
                        onModified: on => window.updater.automaticallyDownloadsUpdates = on
                    }
                }
                MoreToolsCard {
                    width: parent.width
                    onDiscover: window.app.openSuitePage()
                }
            }
        }
    }
}
