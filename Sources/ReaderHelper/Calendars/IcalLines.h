#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

namespace Kestrune {

/// iCalendar text as its lines, to change a few properties and leave everything else as it is, byte for byte.
class IcalLines
{
public:
    /// One component within the text.
    struct Block
    {
        qsizetype begin = 0; ///< Its BEGIN line.
        qsizetype end = 0;   ///< Its END line.
    };

    explicit IcalLines(const QByteArray &text);

    /// The blocks of that kind ("VTODO"), in their order.
    QList<Block> blocks(const QByteArray &kind) const;

    /// The value of the block's own property; nothing without it. Those of components inside do not count.
    std::optional<QByteArray> value(const Block &block, const QByteArray &property) const;

    /// Sets the property's value and keeps its parameters; adds it where it is missing.
    void set(Block &block, const QByteArray &property, const QByteArray &value);

    /// Takes the property out.
    void remove(Block &block, const QByteArray &property);

    QByteArray text(const Block &block) const;
    QByteArray text() const;

private:
    qsizetype find(const Block &block, const QByteArray &property) const;

    QList<QByteArray> m_lines; ///< With their folds and ends.
};

} // namespace Kestrune
