import QtQuick
import Kestrune.Views

/// The connected assistants in brief.
HomeBlock {
    id: block

    required property AIUsageModel model

    title: qsTranslate("notch", "AI Usage")

    AIUsagePresentation {
        id: figures

        model: block.model
        surroundings: block.surroundings
    }

    Column {
        width: parent.width
        spacing: 8

        SectionLabel {
            title: block.title
            symbol: "sparkles"
        }
        PlainText {
            width: parent.width
            visible: !figures.codexOn && !figures.claudeOn
            text: qsTranslate("notch", "Connect Codex or Claude Code to see your limits.")
            font.pixelSize: Theme.fontSize
            color: Theme.dim
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
        }
        UsageBrief {
            width: parent.width
            visible: figures.codexOn
            title: "Codex"
            hint: figures.codexHint
            lines: figures.codexWindows
        }
        UsageBrief {
            width: parent.width
            visible: figures.claudeOn
            title: "Claude Code"
            hint: figures.claudeHint
            lines: [figures.claudeBlock]
        }
    }
}
