import QtQuick
import Kestrune.Views

/// The open notch: header, pane, tool row.
///
///   | title                          pin  settings |
///   |                    pane                      |
///   | tools                                 credit |
FocusScope {
    id: content

    required property NotchScreenModel screenModel
    required property NotchServices services
    required property NotchPresentation presentation

    Accessible.role: Accessible.Pane
    Accessible.name: presentation.paneTitle
    Keys.onPressed: event =>
        event.accepted = presentation.chooseByKey(event.key, event.modifiers, event.nativeScanCode)

    Item {
        id: header

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 40
        z: 1

        PlainText {
            anchors { left: parent.left; right: buttons.left; verticalCenter: parent.verticalCenter }
            text: content.presentation.paneTitle
            font.pixelSize: Theme.titleFontSize
            font.weight: Font.DemiBold
            color: Theme.text
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
        Row {
            id: buttons

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            spacing: 4

            SymbolButton {
                tipBelow: true
                symbol: content.screenModel.pinned ? "pin.fill" : "pin"
                //: Let the notch close by itself again; the opposite of “Keep open”.
                help: content.screenModel.pinned ? qsTranslate("notch", "Unpin") : qsTranslate("notch", "Keep open")
                active: content.screenModel.pinned
                onClicked: content.screenModel.pinned = !content.screenModel.pinned
            }
            SymbolButton {
                tipBelow: true
                visible: content.presentation.offersSettings
                symbol: "gearshape"
                help: qsTranslate("notch", "Settings")
                onClicked: content.presentation.openSettings()
            }
        }
    }

    Repeater {
        model: content.presentation.panes

        Loader {
            id: place

            required property paneEntry modelData
            readonly property bool chosen: modelData.file === content.presentation.paneFile
            readonly property bool live: chosen && content.screenModel.expanded

            function load() {
                const given = {
                    surroundings: content.services.surroundings,
                    screenModel: content.screenModel,
                    presentation: content.presentation
                }
                if (modelData.model)
                    given.model = modelData.model
                asynchronous = !live
                setSource(modelData.file, given)
            }

            function need() {
                if (chosen && status === Loader.Null)
                    load()
            }

            anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: tools.top; bottomMargin: 8 }
            visible: chosen
            // What a closed notch will show is made a little at a time; what is half made when it opens, anew at once.
            onLiveChanged: {
                if (live && status === Loader.Loading)
                    source = ""
                if (live && item)
                    item.present()
                else
                    need()
            }
            onLoaded: if (live) item.present()
            onChosenChanged: {
                if (!chosen && !item?.kept)
                    source = ""
                need()
            }
            Component.onCompleted: need()

            Connections {
                target: tools
                enabled: place.chosen

                function onChosen() {
                    place.item.takeKeyboard()
                }
            }
        }
    }

    ToolRow {
        id: tools

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 8 }
        presentation: content.presentation
    }
}
