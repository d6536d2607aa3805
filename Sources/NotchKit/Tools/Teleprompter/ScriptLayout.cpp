#include "ScriptLayout.h"

#include <QTextLayout>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr qsizetype kPiece = 1200; // Characters that are shaped at a time.

QTextOption option(bool rightToLeft, QTextOption::WrapMode wrap)
{
    QTextOption option(Qt::AlignHCenter);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(wrap);
    return option;
}

} // namespace

void ScriptLayout::begin(const QString &text, const QFont &font, double width)
{
    m_text = text;
    m_font = font;
    m_width = width;
    m_lines.clear();
    m_next = 0;
    enterParagraph();
}

void ScriptLayout::enterParagraph()
{
    const qsizetype end = m_text.indexOf(QLatin1Char('\n'), m_next);
    m_paragraphEnd = end < 0 ? m_text.size() : end;
    m_rightToLeft = QStringView(m_text).mid(m_next, m_paragraphEnd - m_next).isRightToLeft();
}

void ScriptLayout::advance()
{
    if (isComplete())
        return;
    const qsizetype begin = m_next;
    const bool cut = m_paragraphEnd - begin > kPiece;
    const qsizetype length = cut ? kPiece : m_paragraphEnd - begin;
    QTextLayout piece(m_text.mid(begin, length), m_font);
    piece.setTextOption(option(m_rightToLeft, QTextOption::WrapAtWordBoundaryOrAnywhere));
    piece.beginLayout();
    for (QTextLine line = piece.createLine(); line.isValid(); line = piece.createLine())
        line.setLineWidth(m_width);
    piece.endLayout();

    // Where the text goes on after the piece, its last line may hold more than is known here.
    const int whole = std::max(piece.lineCount() - (cut ? 1 : 0), 1);
    for (int i = 0; i < whole && i < piece.lineCount(); ++i) {
        const QTextLine line = piece.lineAt(i);
        addLine(begin + line.textStart(), line.textLength(), line.height());
        m_next = begin + line.textStart() + line.textLength();
    }
    if (m_next >= m_paragraphEnd) {
        m_next = m_paragraphEnd + 1;
        enterParagraph();
    }
}

void ScriptLayout::addLine(qsizetype start, qsizetype length, double height)
{
    while (length > 0 && m_text.at(start + length - 1).isSpace())
        --length;
    const double top = m_lines.empty() ? 0 : this->height() + lineSpacing;
    m_lines.push_back({start, length, top, height, m_rightToLeft});
}

void ScriptLayout::advanceTo(double bottom)
{
    while (!isComplete() && height() < bottom)
        advance();
}

void ScriptLayout::advancePast(qsizetype position)
{
    while (!isComplete() && m_next <= position)
        advance();
}

std::size_t ScriptLayout::lineBelow(double top) const
{
    const auto found =
        std::ranges::upper_bound(m_lines, top, {}, [](const Line &line) { return line.top + line.height; });
    return static_cast<std::size_t>(found - m_lines.begin());
}

std::size_t ScriptLayout::lineAt(qsizetype position) const
{
    const auto found = std::ranges::upper_bound(m_lines, position, {}, &Line::start);
    return static_cast<std::size_t>(std::max(found - m_lines.begin(), std::ptrdiff_t(1)) - 1);
}

std::unique_ptr<QTextLayout> ScriptLayout::shaped(const Line &line) const
{
    auto layout = std::make_unique<QTextLayout>(m_text.mid(line.start, line.length), m_font);
    layout->setTextOption(option(line.rightToLeft, QTextOption::NoWrap));
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine().setLineWidth(m_width);
    layout->endLayout();
    return layout;
}

} // namespace Kestrune
