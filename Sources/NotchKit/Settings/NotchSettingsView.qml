import QtQuick
import Kestrune.Views

/// The notch's settings as a form of six groups. Every control shows what is stored and writes to it.
Column {
    id: view

    required property NotchSettings settings
    required property NotchController controller

    readonly property SettingsPresentation presentation: SettingsPresentation {
        settings: view.settings
        controller: view.controller
    }

    spacing: 20

    FormSection {
        width: view.width
        //: Heading of the settings that say how the notch opens.
        title: qsTranslate("notch", "Opening")

        FormRow {
            //: Followed by the choice of “On hover” and “On click”.
            title: qsTranslate("notch", "Open the notch")
            first: true

            Picker {
                name: qsTranslate("notch", "Open the notch")
                model: view.presentation.openModeTitles
                chosen: view.presentation.openMode
                onModified: index => view.presentation.openMode = index
            }
        }
        SliderRow {
            //: How long the pointer rests on the notch before it opens; beside a slider.
            title: qsTranslate("notch", "Hover delay")
            to: 0.8
            stepSize: 0.05
            value: view.settings.hoverDelay
            valueText: view.presentation.hoverDelayText
            onModified: seconds => view.presentation.setHoverDelay(seconds)
        }
        SwitchRow {
            title: view.presentation.hotKeyTitle
            note: view.presentation.hotKeyText
            on: view.settings.shortcutEnabled
            onModified: on => view.settings.shortcutEnabled = on
        }
        FormRow {
            //: Beside a button that shows the keys of the hot key.
            title: qsTranslate("notch", "Keys")
            visible: view.presentation.choosesHotKeys

            KeyRecorder {
                keys: view.presentation.hotKeys
                record: (key, modifiers) => view.presentation.chooseHotKeys(key, modifiers)
            }
        }
        SwitchRow {
            title: qsTranslate("notch", "Play and pause the teleprompter with Ctrl+Alt+Super+P")
            on: view.settings.prompterShortcutEnabled
            onModified: on => view.settings.prompterShortcutEnabled = on
        }
        SwitchRow {
            title: qsTranslate("notch", "Show the song or timer beside the closed notch")
            on: view.settings.liveActivities
            onModified: on => view.settings.liveActivities = on
        }
        SwitchRow {
            title: qsTranslate("notch", "Show new screenshots beside the notch")
            on: view.settings.announceScreenshots
            onModified: on => view.settings.announceScreenshots = on
        }
    }
    FormSection {
        width: view.width
        //: Heading of the settings that are about monitors.
        title: qsTranslate("notch", "Displays")

        SwitchRow {
            title: qsTranslate("notch", "Show on every display")
            first: true
            on: view.settings.allDisplays
            onModified: on => view.settings.allDisplays = on
        }
        SwitchRow {
            title: qsTranslate("notch", "Draw a notch on displays without one")
            on: view.settings.showWithoutNotch
            onModified: on => view.settings.showWithoutNotch = on
        }
        SwitchRow {
            //: The closed notch; displays with a camera housing keep theirs.
            title: qsTranslate("notch", "Hide over full-screen windows")
            visible: view.controller.knowsFullScreenWindows
            on: view.settings.hideOverFullScreen
            onModified: on => view.settings.hideOverFullScreen = on
        }
        FormRow {
            //: Other programs' bars along the top of the screen; followed by a choice of where the notch is.
            title: qsTranslate("notch", "Panels at the top edge")

            Picker {
                name: qsTranslate("notch", "Panels at the top edge")
                model: view.presentation.placementTitles
                chosen: view.presentation.placement
                onModified: index => view.presentation.placement = index
            }
        }
    }
    FormSection {
        width: view.width
        title: qsTranslate("notch", "Privacy")
        footer: qsTranslate("notch", "Everything stays on this Mac. Weather asks Open-Meteo for your city's forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.")

        SwitchRow {
            title: qsTranslate("notch", "Keep a clipboard history")
            first: true
            on: view.settings.clipboardHistory
            onModified: on => view.settings.clipboardHistory = on
        }
        SwitchRow {
            title: qsTranslate("notch", "Read Codex usage (~/.codex)")
            on: view.settings.readCodexUsage
            onModified: on => view.settings.readCodexUsage = on
        }
        SwitchRow {
            title: qsTranslate("notch", "Read Claude Code usage (~/.claude)")
            on: view.settings.readClaudeUsage
            onModified: on => view.settings.readClaudeUsage = on
        }
        SwitchRow {
            title: qsTranslate("notch", "Temperatures in °F")
            on: view.settings.useFahrenheit
            onModified: on => view.settings.useFahrenheit = on
        }
    }
    FormSection {
        width: view.width
        title: qsTranslate("notch", "Home screen")

        Repeater {
            model: KeyedListModel {
                source: view.presentation
                list: "homeRows"
            }

            HomeWidgetRow {
                required property int index
                required property homeRow modelData

                first: index === 0
                widget: modelData
                presentation: view.presentation
            }
        }
        FormRow {
            title: ""

            TextButton {
                look: Theme.window
                text: qsTranslate("notch", "Restore default layout")
                onClicked: view.presentation.resetHome()
            }
        }
    }
    FormSection {
        width: view.width
        title: qsTranslate("notch", "AI Usage")
        footer: qsTranslate("notch", "Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.")

        FormRow {
            title: qsTranslate("notch", "Claude 5-hour budget (tokens)")
            first: true

            IntegerField {
                name: qsTranslate("notch", "Claude 5-hour budget (tokens)")
                stored: view.presentation.budgetText
                onModified: text => view.presentation.setBudget(text)
            }
        }
    }
    FormSection {
        width: view.width
        title: qsTranslate("notch", "Tools")

        Repeater {
            model: KeyedListModel {
                source: view.presentation
                list: "tools"
            }

            SwitchRow {
                required property int index
                required property toolSwitch modelData

                first: index === 0
                title: modelData.title
                symbol: modelData.symbol
                on: modelData.on
                onModified: on => view.presentation.setEnabled(modelData.id, on)
            }
        }
    }
}
