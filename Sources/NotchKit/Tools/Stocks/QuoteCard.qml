import QtQuick
import Kestrune.Views

/// One quote: what it is, its day, where it stands. A tall card has the line below, a low one between.
Tile {
    id: card

    required property stockQuote quote
    readonly property bool tall: height >= 76

    Accessible.role: Accessible.StaticText
    Accessible.name: quote.symbol + ", " + quote.name + ": " + price.text + ", " + change.text

    Column {
        id: names

        anchors { left: parent.left; leftMargin: 12; right: card.tall ? figures.left : line.left; rightMargin: 8 }
        y: card.tall ? 10 : (parent.height - height) / 2
        spacing: 1

        PlainText {
            width: parent.width
            text: card.quote.symbol
            font.pixelSize: Theme.largeFontSize
            font.weight: Font.DemiBold
            color: Theme.text
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        PlainText {
            width: parent.width
            visible: text !== card.quote.symbol
            text: card.quote.name
            font.pixelSize: Theme.smallFontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    Column {
        id: figures

        anchors { right: parent.right; rightMargin: 12 }
        y: card.tall ? 10 : (parent.height - height) / 2
        width: card.tall ? 96 : 66
        spacing: 1

        PlainText {
            id: price

            width: parent.width
            text: QuoteFormat.price(card.quote.price, card.quote.currency)
            font.pixelSize: Theme.largeFontSize
            color: Theme.text
            horizontalAlignment: Text.AlignRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
            Accessible.ignored: true
        }
        PlainText {
            id: change

            width: parent.width
            text: QuoteFormat.change(card.quote.change)
            font.pixelSize: Theme.smallFontSize
            color: card.quote.change < 0 ? Theme.bad : Theme.good
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    Sparkline {
        id: line

        x: card.tall ? 12 : Theme.mirrored ? figures.x + figures.width + 8 : figures.x - width - 8
        y: card.tall ? 48 : (parent.height - height) / 2
        width: card.tall ? parent.width - 24 : 40
        height: card.tall ? parent.height - 58 : 22
        points: card.quote.points
        up: card.quote.change >= 0
    }
}
