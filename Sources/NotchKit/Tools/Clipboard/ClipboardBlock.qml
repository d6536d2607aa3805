import QtQuick
import Kestrune.Views

/// The newest copies; a click on one copies it again.
HomeBlock {
    id: block

    required property ClipboardModel model
    readonly property ClipboardModel clipboard: model
    readonly property bool historyOn: surroundings.settings.clipboardHistory
    readonly property list<clipboardItem> newest: historyOn ? clipboard.items.slice(0, 3) : []
    property string copied: ""

    title: qsTranslate("notch", "Latest copies")
    onPresented: copied = ""

    Column {
        width: parent.width
        spacing: 4

        SectionLabel {
            title: block.title
            symbol: "doc.on.clipboard"
        }
        PlainText {
            width: parent.width
            visible: block.newest.length === 0
            text: block.historyOn
                ? qsTranslate("notch", "Copy something and it appears here.\nPasswords from password managers are never saved.")
                : qsTranslate("notch", "Clipboard history is off.\nTurn it on in Settings.")
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
        Repeater {
            model: block.newest

            ClipLine {
                required property clipboardItem modelData

                x: -4 // so that its symbol stands below the title's
                width: parent.width + 8
                item: modelData
                copied: item.id === block.copied
                onClicked: {
                    block.clipboard.copy(item.id)
                    block.copied = item.id
                }
            }
        }
    }
}
