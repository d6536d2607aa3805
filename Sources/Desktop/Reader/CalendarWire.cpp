#include "CalendarWire.h"

#include "NotchKit/Platform/Utc.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr qint64 kMostListed = 100'000;

/// Writes or reads values one after the other: what both do is written once.
class Packer
{
public:
    Packer() { m_stream.setVersion(QDataStream::Qt_6_4); }

    template <typename... Values>
    void operator()(Values &...values)
    {
        (m_stream << ... << values);
    }
    void operator()(QDateTime &time)
    {
        const bool isValid = time.isValid();
        m_stream << isValid << (isValid ? time.toMSecsSinceEpoch() : 0);
    }
    template <typename Value, typename Each>
    void list(QList<Value> &values, const Each &each)
    {
        m_stream << static_cast<qint64>(values.size());
        for (Value &value : values)
            each(value);
    }

    template <typename Key, typename Value, typename Each>
    void map(QMap<Key, Value> &values, const Each &each)
    {
        m_stream << static_cast<qint64>(values.size());
        for (auto entry = values.begin(); entry != values.end(); ++entry) {
            m_stream << entry.key();
            each(entry.value());
        }
    }

    QByteArray take() { return std::move(m_bytes); }

private:
    QByteArray m_bytes;
    QDataStream m_stream{&m_bytes, QIODevice::WriteOnly};
};

class Unpacker
{
public:
    explicit Unpacker(const QByteArray &bytes)
        : m_stream(bytes)
    {
        m_stream.setVersion(QDataStream::Qt_6_4);
    }

    template <typename... Values>
    void operator()(Values &...values)
    {
        (m_stream >> ... >> values);
    }
    void operator()(QDateTime &time)
    {
        bool isValid = false;
        qint64 milliseconds = 0;
        m_stream >> isValid >> milliseconds;
        time = isValid ? QDateTime::fromMSecsSinceEpoch(milliseconds, kUtc) : QDateTime();
    }
    /// Grows with what is there, whatever number is claimed, and not without end.
    template <typename Value, typename Each>
    void list(QList<Value> &values, const Each &each)
    {
        const qint64 count = readCount();
        for (qint64 i = 0; i < count && isGood(); ++i)
            each(values.emplaceBack());
    }
    template <typename Key, typename Value, typename Each>
    void map(QMap<Key, Value> &values, const Each &each)
    {
        const qint64 count = readCount();
        for (qint64 i = 0; i < count && isGood(); ++i) {
            Key key;
            m_stream >> key;
            each(values[key]);
        }
    }

    bool isGood() const { return m_stream.status() == QDataStream::Ok; }
    bool isOver() const { return isGood() && m_stream.atEnd(); }

private:
    qint64 readCount()
    {
        qint64 count = 0;
        m_stream >> count;
        if (count > kMostListed)
            m_stream.setStatus(QDataStream::ReadCorruptData);
        return count;
    }

    QDataStream m_stream;
};

template <typename Pack>
void pack(Pack &pack, IcalRange &range)
{
    pack(range.from);
    pack(range.to);
}

template <typename Pack>
void pack(Pack &pack, IcalTexts &texts)
{
    const auto packOne = [&](QByteArray &text) { pack(text); };
    pack(texts.origin, texts.isWhole);
    pack.list(texts.texts, packOne);
    pack.map(texts.series, [&](QList<QByteArray> &series) { pack.list(series, packOne); });
    pack.map(texts.zones, packOne);
}

template <typename Pack>
void pack(Pack &pack, std::optional<IcalChange> &change)
{
    bool isThere = change.has_value();
    pack(isThere);
    if (!isThere)
        return;
    IcalChange &value = change ? *change : change.emplace();
    pack(value.task.origin, value.task.uid, value.task.instance);
    pack(value.now);
}

template <typename Pack>
void pack(Pack &pack, IcalFound &found)
{
    auto state = static_cast<quint8>(found.state);
    pack(state, found.leftOut);
    found.state = state > 1 ? IcalFound::State::abandoned : static_cast<IcalFound::State>(state);
    pack(found.until);
    pack.list(found.events, [&](CalendarEvent &event) {
        pack(event.id, event.title, event.allDay);
        pack(event.start);
        pack(event.end);
    });
    pack.list(found.tasks, [&](CalendarTask &task) {
        pack(task.id, task.title);
        pack(task.due);
    });
    pack.list(found.series, [&](QString &uid) { pack(uid); });
    pack.list(found.zones, [&](QByteArray &zone) { pack(zone); });
}

template <typename Pack>
void pack(Pack &pack, std::optional<CompletedTask> &completed)
{
    bool isThere = completed.has_value();
    pack(isThere);
    if (!isThere)
        return;
    CompletedTask &value = completed ? *completed : completed.emplace();
    pack(value.text, value.task);
}

template <typename Pack>
void packAll(Pack &packer, CalendarQuestion &question)
{
    packer(question.zone);
    pack(packer, question.range);
    packer.list(question.calendars, [&](IcalTexts &texts) { pack(packer, texts); });
    pack(packer, question.change);
}

template <typename Pack>
void packAll(Pack &packer, CalendarAnswer &answer)
{
    packer.list(answer.found, [&](IcalFound &found) { pack(packer, found); });
    pack(packer, answer.completed);
}

template <typename Value>
QByteArray packed(Value value)
{
    Packer packer;
    packAll(packer, value);
    return packer.take();
}

template <typename Value>
std::optional<Value> unpacked(const QByteArray &bytes)
{
    Unpacker unpacker(bytes);
    Value value;
    packAll(unpacker, value);
    return unpacker.isOver() ? std::optional(std::move(value)) : std::nullopt;
}

bool makesSense(const CalendarEvent &event)
{
    return event.start.isValid() && event.end.isValid() && event.start <= event.end;
}

} // namespace

bool IcalRange::overlaps(const QDateTime &start, const QDateTime &end) const
{
    return start < to && (end > from || (start == end && start >= from));
}

QString IcalTaskId::text() const { return origin + kBetweenIdParts + uid + kBetweenIdParts + instance; }

std::optional<IcalTaskId> IcalTaskId::parse(const QString &text)
{
    const QStringList parts = text.split(kBetweenIdParts);
    if (parts.size() != 3)
        return std::nullopt;
    return IcalTaskId{parts.at(0), parts.at(1), parts.at(2)};
}

QByteArray CalendarQuestion::bytes() const { return packed(*this); }

std::optional<CalendarQuestion> CalendarQuestion::parse(const QByteArray &bytes)
{
    return unpacked<CalendarQuestion>(bytes);
}

QByteArray CalendarAnswer::bytes() const { return packed(*this); }

std::optional<CalendarAnswer> CalendarAnswer::parse(const QByteArray &bytes)
{
    auto answer = unpacked<CalendarAnswer>(bytes);
    if (!answer)
        return std::nullopt;
    for (const IcalFound &found : std::as_const(answer->found)) {
        if (!std::ranges::all_of(found.events, makesSense))
            return std::nullopt;
    }
    return answer;
}

} // namespace Kestrune
