#pragma once

#include <QFont>
#include <QString>

#include <memory>
#include <vector>

class QTextLayout;

namespace Kestrune {

/// Where the lines of a long script break, found a piece at a time, so that nobody waits for its end. Only
/// the places are kept; the few lines on screen are shaped when they are drawn. Sizes are points.
class ScriptLayout
{
public:
    struct Line
    {
        qsizetype start = 0;
        qsizetype length = 0; ///< Without the spaces that end it.
        double top = 0;
        double height = 0;
        bool rightToLeft = false; ///< What its paragraph is.
    };

    static constexpr double lineSpacing = 6;

    /// Begins anew. Nothing is laid out yet.
    void begin(const QString &text, const QFont &font, double width);

    bool isComplete() const { return m_next > m_text.size(); }

    /// Lays out the next piece, about a thousand characters: less than a millisecond.
    void advance();

    /// Lays out at least down to `bottom`, or to the character at `position`.
    void advanceTo(double bottom);
    void advancePast(qsizetype position);

    /// The lines so far, from the top down.
    const std::vector<Line> &lines() const { return m_lines; }

    /// Of the lines so far.
    double height() const { return m_lines.empty() ? 0 : m_lines.back().top + m_lines.back().height; }

    /// The first line whose bottom, or whose end in the text, is past the given place; one past the last
    /// when there is none.
    std::size_t lineBelow(double top) const;
    std::size_t lineAt(qsizetype position) const;

    /// A line ready to be drawn, centred in the width.
    std::unique_ptr<QTextLayout> shaped(const Line &line) const;

private:
    void enterParagraph();
    void addLine(qsizetype start, qsizetype length, double height);

    QString m_text;
    QFont m_font;
    double m_width = 0;
    qsizetype m_next = 1;         ///< Where the next piece begins; past the text when all is laid out.
    qsizetype m_paragraphEnd = 0; ///< The end of the paragraph that `m_next` is in.
    bool m_rightToLeft = false;
    std::vector<Line> m_lines;
};

} // namespace Kestrune
