import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// An editor of plain text on a tile, with its own scrolling. Each keystroke is told at once.
Tile {
    id: editor

    /// The text as it is stored.
    required property string stored
    required property string placeholder
    required property string name
    required property NotchScreenModel screenModel
    readonly property alias field: input

    /// The text is now another than the stored one.
    signal edited(string text)

    onStoredChanged: {
        if (input.ready && input.text !== stored)
            input.text = stored
    }

    PlainText {
        objectName: "placeholder"
        anchors.fill: parent
        anchors.margins: 14
        visible: input.length === 0 && input.preeditText === ""
        text: editor.placeholder
        font.pixelSize: editor.look.largeFontSize
        color: editor.look.faded
        wrapMode: Text.WordWrap
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Flickable {
        id: scroller

        anchors.fill: parent
        anchors.margins: 8
        clip: true
        contentWidth: width
        contentHeight: Math.max(height, input.implicitHeight)
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        T.ScrollBar.vertical: ScrollBar {
            look: editor.look
            parent: editor
            anchors { top: parent.top; bottom: parent.bottom; right: parent.right; margins: 4 }
        }

        function reveal(rectangle) {
            if (contentY > rectangle.y)
                contentY = rectangle.y
            else if (contentY + height < rectangle.y + rectangle.height)
                contentY = rectangle.y + rectangle.height - height
        }

        TextEdit {
            id: input

            property bool ready: false

            function leave(event, forwards) {
                event.accepted = !(event.modifiers & Qt.ControlModifier)
                if (event.accepted)
                    nextItemInFocusChain(forwards).forceActiveFocus(forwards ? Qt.TabFocusReason : Qt.BacktabFocusReason)
            }

            objectName: "input"
            width: scroller.width
            height: scroller.contentHeight
            leftPadding: 6
            rightPadding: 6
            topPadding: 6
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            persistentSelection: true
            font.pixelSize: editor.look.largeFontSize
            color: editor.look.text
            selectionColor: editor.look.accent
            selectedTextColor: editor.look.accentText
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            Accessible.name: editor.name
            Accessible.multiLine: true
            Keys.onTabPressed: event => leave(event, true)
            Keys.onBacktabPressed: event => leave(event, false)
            Keys.onMenuPressed: menu.openByKey()

            Component.onCompleted: {
                ClipboardGuard.detach(input)
                text = editor.stored
                cursorPosition = length
                ready = true
            }
            onTextChanged: {
                if (ready && text !== editor.stored)
                    editor.edited(text)
            }
            onCursorRectangleChanged: scroller.reveal(cursorRectangle)

            TextMenu {
                id: menu

                field: input
                look: editor.look
                screenModel: editor.screenModel
            }
            PointHandler {
                acceptedButtons: Qt.LeftButton | Qt.MiddleButton
                onActiveChanged: if (active) editor.screenModel.keyboardWanted()
            }
            HoverHandler { cursorShape: Qt.IBeamCursor }
        }
    }
}
