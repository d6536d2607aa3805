#include "IcalLines.h"

namespace Kestrune {

namespace {

QByteArray unfolded(QByteArray line)
{
    return line.replace("\r\n ", "").replace("\r\n\t", "").replace("\n ", "").replace("\n\t", "").trimmed();
}

QByteArray endOf(const QByteArray &line) { return line.endsWith("\r\n") ? "\r\n" : "\n"; }

/// Where the value begins in an unfolded line: behind the first colon outside quotes.
qsizetype valueAt(const QByteArray &line)
{
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line.at(i) == '"')
            quoted = !quoted;
        else if (line.at(i) == ':' && !quoted)
            return i + 1;
    }
    return line.size();
}

QByteArray nameOf(const QByteArray &line)
{
    const QByteArray head = unfolded(line);
    qsizetype end = 0;
    while (end < head.size() && head.at(end) != ':' && head.at(end) != ';')
        ++end;
    return head.left(end).toUpper();
}

/// In pieces of 75 bytes at the most, no character cut in two.
QByteArray folded(const QByteArray &line, const QByteArray &end)
{
    constexpr qsizetype kLongest = 74;
    QByteArray text;
    for (qsizetype at = 0; at < line.size();) {
        qsizetype length = std::min(kLongest, line.size() - at);
        while (at + length < line.size() && length > 1 && (line.at(at + length) & 0xC0) == 0x80)
            --length;
        text += (at > 0 ? " " : "") + line.mid(at, length) + end;
        at += length;
    }
    return text;
}

bool isLine(const QByteArray &line, const QByteArray &name, const QByteArray &value)
{
    const QByteArray whole = unfolded(line).toUpper();
    return whole == name + ':' + value;
}

} // namespace

IcalLines::IcalLines(const QByteArray &text)
{
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = text.indexOf('\n', at);
        while (end >= 0 && end + 1 < text.size() && (text.at(end + 1) == ' ' || text.at(end + 1) == '\t'))
            end = text.indexOf('\n', end + 1);
        end = end < 0 ? text.size() : end + 1;
        m_lines.append(text.mid(at, end - at));
        at = end;
    }
    // What is added must not end up on the last line.
    if (!m_lines.isEmpty() && !m_lines.last().endsWith('\n'))
        m_lines.last() += endOf(m_lines.first());
}

QList<IcalLines::Block> IcalLines::blocks(const QByteArray &kind) const
{
    QList<Block> found;
    qsizetype begin = -1;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        if (isLine(m_lines.at(i), "BEGIN", kind)) {
            begin = i;
        } else if (begin >= 0 && isLine(m_lines.at(i), "END", kind)) {
            found.append({begin, i});
            begin = -1;
        }
    }
    return found;
}

qsizetype IcalLines::find(const Block &block, const QByteArray &property) const
{
    int depth = 0;
    for (qsizetype i = block.begin + 1; i < block.end; ++i) {
        const QByteArray name = nameOf(m_lines.at(i));
        if (name == "BEGIN")
            ++depth;
        else if (name == "END")
            --depth;
        else if (depth == 0 && name == property)
            return i;
    }
    return -1;
}

std::optional<QByteArray> IcalLines::value(const Block &block, const QByteArray &property) const
{
    const qsizetype at = find(block, property);
    if (at < 0)
        return std::nullopt;
    const QByteArray line = unfolded(m_lines.at(at));
    return line.mid(valueAt(line));
}

void IcalLines::set(Block &block, const QByteArray &property, const QByteArray &value)
{
    const QByteArray end = endOf(m_lines.at(block.begin));
    const qsizetype at = find(block, property);
    if (at < 0) {
        m_lines.insert(block.begin + 1, folded(property + ':' + value, end));
        ++block.end;
        return;
    }
    const QByteArray line = unfolded(m_lines.at(at));
    m_lines[at] = folded(line.left(valueAt(line)) + value, end);
}

void IcalLines::remove(Block &block, const QByteArray &property)
{
    for (qsizetype at = find(block, property); at >= 0; at = find(block, property)) {
        m_lines.removeAt(at);
        --block.end;
    }
}

QByteArray IcalLines::text(const Block &block) const
{
    return m_lines.mid(block.begin, block.end - block.begin + 1).join();
}

QByteArray IcalLines::text() const { return m_lines.join(); }

} // namespace Kestrune
