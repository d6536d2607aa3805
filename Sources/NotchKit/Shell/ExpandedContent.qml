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

    Loader {
        id: pane

        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: tools.top; bottomMargin: 8 }
        focus: true

        function load() {
            const given = {
                surroundings: content.services.surroundings,
                screenModel: content.screenModel,
                presentation: content.presentation
            }
            if (content.presentation.paneModel)
                given.model = content.presentation.paneModel
            setSource(content.presentation.paneFile, given)
        }

        Component.onCompleted: load()
    }

    Connections {
        target: content.presentation

        function onSelectionChanged() {
            if (!pane.source.toString().endsWith("/" + content.presentation.paneFile))
                pane.load()
        }
    }

    ToolRow {
        id: tools

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 8 }
        presentation: content.presentation
    }
}
