import QtQuick
import QtQuick.Templates as T
import Kestrune.Views

/// The quotes as a grid of cards, and the editor of the symbols.
///
///   | editor             |   only while it is wanted
///   | card | card | card |
///   | not found          |
///   | note          edit |
Pane {
    id: pane

    required property StocksModel model
    readonly property StocksModel stocks: model
    readonly property bool empty: surroundings.settings.tickers.length === 0
    readonly property bool editorShown: editing || empty
    property bool editing: false

    function stored() {
        return surroundings.settings.tickers.join(", ")
    }

    function edit() {
        field.text = stored()
        editing = true
        field.forceActiveFocus()
        screenModel.keyboardWanted()
    }

    first: editorShown ? field : null
    kept: true
    onPresented: {
        if (field.text === stored())
            editing = false
        grid.positionViewAtBeginning()
    }
    Keys.onEscapePressed: event => {
        event.accepted = editing
        editing = false
    }

    LineField {
        id: field

        anchors { left: parent.left; right: parent.right; top: parent.top }
        implicitHeight: 28
        visible: pane.editorShown
        focus: visible
        screenModel: pane.screenModel
        placeholderText: qsTranslate("notch", "Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)")
        onAccepted: {
            pane.stocks.setSymbols(text)
            pane.editing = false
        }
    }

    PaneMessage {
        anchors { left: parent.left; right: parent.right; top: field.bottom; bottom: footer.top }
        visible: pane.empty
        symbol: "chart.xyaxis.line"
        text: qsTranslate("notch", "Type the symbols that you want to follow.")
    }

    PaneMessage {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: footer.top }
        visible: !pane.editorShown && grid.quotes === 0 && text !== ""
        symbol: "chart.xyaxis.line"
        text: QuoteFormat.gaps([], pane.stocks.unreached, "")
    }

    GridView {
        id: grid

        readonly property int quotes: pane.stocks.quotes.length
        readonly property int columns: quotes > 4 ? 3 : 2
        readonly property int rows: Math.max(Math.ceil(quotes / columns), 2)

        anchors {
            left: parent.left; right: parent.right; rightMargin: -Theme.gap
            top: pane.editorShown ? field.bottom : parent.top; topMargin: pane.editorShown ? Theme.gap : 0
            bottom: missing.visible ? missing.top : footer.top
        }
        visible: !pane.empty
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        cellWidth: Math.floor(width / columns)
        cellHeight: Math.max(46, Math.min(108, Math.floor(height / rows)))
        T.ScrollBar.vertical: ScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("notch", "Stocks")

        model: KeyedListModel {
            source: pane.stocks
            list: "quotes"
            key: "symbol"
        }
        delegate: Item {
            required property stockQuote modelData

            width: grid.cellWidth
            height: grid.cellHeight

            QuoteCard {
                anchors { fill: parent; rightMargin: Theme.gap; bottomMargin: Theme.gap }
                quote: parent.modelData
            }
        }
    }

    PlainText {
        id: missing

        anchors { left: parent.left; right: parent.right; bottom: footer.top }
        height: 20
        visible: !pane.empty && text !== ""
        text: QuoteFormat.gaps(pane.stocks.failed, grid.quotes > 0 || pane.editorShown ? pane.stocks.unreached : [],
                               FigureAge.text(pane.stocks.oldestTime, pane.surroundings.now))
        font.pixelSize: Theme.smallFontSize
        color: Theme.warning
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    Item {
        id: footer

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 28

        PlainText {
            anchors { left: parent.left; right: busy.left; verticalCenter: parent.verticalCenter }
            text: qsTranslate("notch", "Delayed quotes from Yahoo Finance.")
            font.pixelSize: Theme.smallFontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
        Spinner {
            id: busy

            anchors { right: change.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            running: pane.stocks.loading
        }
        TextButton {
            id: change

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            implicitHeight: 24
            symbol: "pencil"
            text: qsTranslate("notch", "Edit symbols")
            active: pane.editing
            enabled: !pane.empty
            onClicked: pane.editing ? pane.editing = false : pane.edit()
        }
    }
}
