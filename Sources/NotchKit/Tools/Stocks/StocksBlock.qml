import QtQuick
import Kestrune.Views

/// The first quotes in brief.
HomeBlock {
    id: block

    required property StocksModel model
    readonly property StocksModel stocks: model
    readonly property bool empty: surroundings.settings.tickers.length === 0
    readonly property list<stockQuote> first: empty ? [] : stocks.quotes.slice(0, 4)

    title: qsTranslate("notch", "Stocks")

    Column {
        width: parent.width
        spacing: 8

        SectionLabel {
            title: block.title
            symbol: "chart.xyaxis.line"
        }
        PlainText {
            width: parent.width
            visible: text !== ""
            text: block.empty ? qsTranslate("notch", "Type the symbols that you want to follow.")
                : block.first.length > 0 ? ""
                : QuoteFormat.gaps(block.stocks.failed, block.stocks.unreached, "") || "–"
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
            maximumLineCount: 3
            elide: Text.ElideRight
        }
        Repeater {
            model: block.first

            Item {
                id: row

                required property stockQuote modelData

                width: parent.width
                height: 18

                PlainText {
                    anchors { left: parent.left; right: line.left; rightMargin: 4; verticalCenter: parent.verticalCenter }
                    text: row.modelData.symbol
                    font.pixelSize: Theme.fontSize
                    font.weight: Font.DemiBold
                    color: Theme.text
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideRight
                }
                Sparkline {
                    id: line

                    anchors { right: price.left; rightMargin: 4; verticalCenter: parent.verticalCenter }
                    width: 16
                    height: 14
                    points: row.modelData.points
                    up: row.modelData.change >= 0
                }
                PlainText {
                    id: price

                    anchors { right: change.left; rightMargin: 4; verticalCenter: parent.verticalCenter }
                    width: Math.max(implicitWidth, 56)
                    text: QuoteFormat.price(row.modelData.price, row.modelData.currency)
                    horizontalAlignment: Text.AlignRight
                    font.pixelSize: Theme.fontSize
                    color: Theme.text
                }
                PlainText {
                    id: change

                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    width: Math.max(implicitWidth, 46)
                    text: QuoteFormat.change(row.modelData.change)
                    font.pixelSize: Theme.smallFontSize
                    color: row.modelData.change < 0 ? Theme.bad : Theme.good
                    horizontalAlignment: Text.AlignRight
                }
            }
        }
        PlainText {
            width: parent.width
            visible: block.first.length > 0 && text !== ""
            text: FigureAge.text(block.stocks.oldestTime, block.surroundings.now)
            font.pixelSize: Theme.smallFontSize
            color: Theme.warning
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
    }
}
