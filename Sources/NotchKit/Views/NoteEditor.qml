import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// An editor bound to the note: each keystroke is stored at once.
Tile {
    id: editor

    required property NotchSettings settings
    required property NotchScreenModel screenModel

    Text {
        objectName: "placeholder"
        anchors.fill: parent
        anchors.margins: 14
        visible: input.length === 0 && input.preeditText === ""
        text: qsTranslate("notch", "Quick note… it saves as you type.")
        font.pixelSize: 13
        color: Qt.rgba(1, 1, 1, 0.35)
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
            font.pixelSize: 13
            color: Theme.text
            selectionColor: Theme.accent
            selectedTextColor: "black"
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            Accessible.name: qsTranslate("notch", "Note")
            Accessible.multiLine: true
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            Component.onCompleted: {
                ClipboardGuard.detach(input)
                text = editor.settings.note
                cursorPosition = length
            }
            onTextChanged: editor.settings.note = text
            onCursorRectangleChanged: scroller.reveal(cursorRectangle)

            PointHandler {
                acceptedButtons: Qt.LeftButton | Qt.MiddleButton | Qt.RightButton
                onActiveChanged: if (active) editor.screenModel.keyboardWanted()
            }
            HoverHandler { cursorShape: Qt.IBeamCursor }
        }
    }

    Connections {
        target: editor.settings

        function onNoteChanged() {
            if (input.text !== editor.settings.note)
                input.text = editor.settings.note
        }
    }
}
