import QtQuick
import Kestrune.Views

/// The teleprompter: the script, scrolling or in its editor, and below it the controls. With the keyboard,
/// the space bar plays and pauses and the arrows scroll.
Pane {
    id: pane

    required property TeleprompterModel model
    readonly property TeleprompterModel prompter: model
    readonly property NotchSettings settings: surroundings.settings
    readonly property bool empty: settings.prompterText === ""
    // Without a script there is nothing to read, and one can be pasted at once.
    readonly property bool editorShown: prompter.editing || empty

    first: (editor.item as PlainEditor)?.field ?? script

    Loader {
        id: editor

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: controls.top; bottomMargin: 8 }
        active: pane.editorShown
        focus: active
        sourceComponent: PlainEditor {
            stored: pane.settings.prompterText
            placeholder: qsTranslate("notch", "Paste your script here. It scrolls right under the camera so you keep eye contact.")
            //: Name of the field for the text that is read aloud.
            name: qsTranslate("notch", "Script")
            screenModel: pane.screenModel
            onEdited: text => {
                pane.prompter.editing = true
                pane.settings.prompterText = text
            }
            Component.onCompleted: {
                field.cursorPosition = 0
                if (pane.activeFocus)
                    field.forceActiveFocus()
            }
        }
    }

    PrompterScript {
        id: script

        anchors.fill: editor
        visible: !pane.editorShown
        focus: visible
        activeFocusOnTab: activeFocus // Tab goes on from here, but does not come here.
        text: pane.settings.prompterText
        fontSize: pane.settings.prompterFontSize
        speed: pane.settings.prompterSpeed
        offset: pane.prompter.offset
        playing: pane.prompter.playing
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        onPlaceMoved: offset => pane.prompter.scrollTo(offset)
        Keys.onSpacePressed: pane.prompter.playing = !pane.prompter.playing
        Keys.onUpPressed: pane.prompter.scrollTo(pane.prompter.offset - 40)
        Keys.onDownPressed: pane.prompter.scrollTo(pane.prompter.offset + 40)

        MouseArea {
            property real grabbed

            anchors.fill: parent
            cursorShape: pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
            onPressed: event => grabbed = pane.prompter.offset + event.y
            onPositionChanged: event => pane.prompter.scrollTo(grabbed - event.y)
            onWheel: event => pane.prompter.scrollTo(
                pane.prompter.offset - (event.pixelDelta.y || event.angleDelta.y / 2))
        }
    }
    Binding {
        target: pane.prompter
        property: "maximumOffset"
        value: script.end
        when: script.visible
        restoreMode: Binding.RestoreNone
    }

    PlainText {
        anchors { right: script.right; bottom: script.bottom }
        visible: script.visible && pane.prompter.secondsLeft >= 0
        //: How long the rest of the script takes to scroll past. %1 is a time such as 3:05.
        text: qsTranslate("notch", "%1 left").arg(Format.playTime(pane.prompter.secondsLeft))
        font.pixelSize: Theme.smallFontSize
        color: Theme.dim
    }

    Item {
        id: controls

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 28

        Row {
            id: playback

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            spacing: Theme.gap

            TextButton {
                width: Math.max(implicitWidth, 108) // the wider of its two states, so that nothing moves
                prominent: true
                symbolWidth: 20
                symbol: pane.prompter.playing ? "pause.fill" : "play.fill"
                text: pane.prompter.playing ? qsTranslate("notch", "Pause") : qsTranslate("notch", "Play")
                enabled: !pane.empty
                onClicked: pane.prompter.playing = !pane.prompter.playing
            }
            TextButton {
                symbol: "backward.end.fill"
                //: A button: scroll the script from its beginning again.
                text: qsTranslate("notch", "Restart")
                enabled: !pane.empty
                onClicked: pane.prompter.restart()
            }
        }
        Row {
            anchors {
                horizontalCenter: parent.horizontalCenter
                horizontalCenterOffset: (playback.width - sizes.width) / 2
                verticalCenter: parent.verticalCenter
            }
            spacing: 6

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "tortoise"
                color: Theme.dim
            }
            SlimSlider {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(180, controls.width - playback.width - sizes.width - 92)
                //: How fast the script scrolls.
                help: qsTranslate("notch", "Speed")
                from: pane.settings.leastPrompterSpeed
                to: pane.settings.mostPrompterSpeed
                stepSize: 2
                value: pane.settings.prompterSpeed
                onMoved: pane.settings.prompterSpeed = value
            }
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "hare"
                color: Theme.dim
            }
        }
        Row {
            id: sizes

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            spacing: 16

            Stepper {
                anchors.verticalCenter: parent.verticalCenter
                //: %1 is the size of the letters in points. There is little room.
                text: qsTranslate("notch", "Text %1").arg(Format.digits(Math.round(value)))
                lowerHelp: qsTranslate("notch", "Smaller text")
                raiseHelp: qsTranslate("notch", "Larger text")
                from: pane.settings.leastPrompterFontSize
                to: pane.settings.mostPrompterFontSize
                stepSize: 2
                value: pane.settings.prompterFontSize
                onModified: value => pane.settings.prompterFontSize = value
            }
            TextButton {
                width: Math.max(implicitWidth, 72)
                //: A button of the script: “Edit” begins to change it, “Done” ends that.
                text: pane.editorShown ? qsTranslate("notch", "Done") : qsTranslate("notch", "Edit")
                active: pane.prompter.editing
                enabled: !pane.empty
                onClicked: {
                    pane.prompter.editing = !pane.prompter.editing
                    if (pane.prompter.editing)
                        pane.screenModel.keyboardWanted()
                }
            }
        }
    }
}
