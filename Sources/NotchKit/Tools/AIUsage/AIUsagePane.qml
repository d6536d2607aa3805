import QtQuick
import Kestrune.Views

/// How much of both assistants' limits is used.
///
///   |    Codex    | Claude Code |
///   | note               reread |
Pane {
    id: pane

    required property AIUsageModel model
    readonly property AIUsageModel usage: model

    AIUsagePresentation {
        id: figures

        model: pane.model
        surroundings: pane.surroundings
    }

    Row {
        id: cards

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: footer.top; bottomMargin: 4 }
        spacing: Theme.gap

        UsageCard {
            width: (cards.width - cards.spacing) / 2
            height: cards.height
            symbol: "terminal"
            title: "Codex"
            on: figures.codexOn
            explanation: qsTranslate("notch", "Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.")
            hint: figures.codexHint
            onConnect: pane.usage.connectCodex()

            Repeater {
                model: figures.codexWindows

                UsageLimit {
                    required property usageLine modelData

                    width: parent.width
                    line: modelData
                }
            }
            PlainText {
                width: parent.width
                text: figures.codexUpdated
                font.pixelSize: Theme.smallFontSize
                color: Theme.dim
                horizontalAlignment: Text.AlignLeft
                elide: Text.ElideRight
            }
        }

        UsageCard {
            width: (cards.width - cards.spacing) / 2
            height: cards.height
            symbol: "sparkle"
            title: "Claude Code"
            on: figures.claudeOn
            explanation: qsTranslate("notch", "Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.")
            hint: figures.claudeHint
            onConnect: pane.usage.connectClaude()

            Item {
                width: parent.width
                height: tokens.implicitHeight

                PlainText {
                    anchors { left: parent.left; right: tokens.left; rightMargin: 8; baseline: tokens.baseline }
                    text: figures.claudeBlock.title
                    font.pixelSize: Theme.fontSize
                    color: Theme.dim
                    horizontalAlignment: Text.AlignLeft
                    elide: Text.ElideRight
                }
                PlainText {
                    id: tokens

                    anchors.right: parent.right
                    text: figures.claudeTokens
                    font.pixelSize: Theme.titleFontSize
                    font.weight: Font.DemiBold
                    color: Theme.text
                }
            }
            Column {
                width: parent.width
                spacing: 6

                UsageBar {
                    width: parent.width
                    fraction: figures.claudeBlock.fraction
                }
                Item {
                    width: parent.width
                    height: yardstick.implicitHeight

                    PlainText {
                        id: yardstick

                        anchors { left: parent.left; right: resets.left; rightMargin: 8 }
                        text: figures.claudeBlock.text
                        font.pixelSize: Theme.smallFontSize
                        color: Theme.dim
                        horizontalAlignment: Text.AlignLeft
                        elide: Text.ElideRight
                    }
                    PlainText {
                        id: resets

                        anchors.right: parent.right
                        text: figures.claudeBlock.resets
                        font.pixelSize: Theme.smallFontSize
                        color: Theme.dim
                    }
                }
            }
            Column {
                width: parent.width
                spacing: 6

                PlainText {
                    anchors.left: parent.left
                    text: qsTranslate("notch", "Last 7 days")
                    font.pixelSize: Theme.fontSize
                    color: Theme.dim
                }
                DailyBars {
                    width: parent.width
                    days: figures.days
                }
            }
        }
    }

    Item {
        id: footer

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 24

        PlainText {
            anchors { left: parent.left; right: again.left; verticalCenter: parent.verticalCenter }
            text: qsTranslate("notch", "Nothing leaves your Mac.")
            font.pixelSize: Theme.smallFontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
        }
        SymbolButton {
            id: again

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            implicitHeight: 24
            visible: figures.codexOn || figures.claudeOn
            enabled: !pane.usage.loading
            symbol: "arrow.clockwise"
            //: On a round button: read the logs once more.
            help: qsTranslate("notch", "Read again")
            onClicked: pane.usage.refresh(true)
        }
    }
}
