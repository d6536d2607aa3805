#include "Desktop/Defaults/StoredValue.h"

#include <QDataStream>
#include <QIODevice>
#include <QStringDecoder>

namespace Kestrune {

namespace {

const SqliteValue booleanType = SqliteText{"bool"};
const SqliteValue integerType = SqliteText{"integer"};
const SqliteValue doubleType = SqliteText{"double"};
const SqliteValue stringType = SqliteText{"string"};
const SqliteValue listType = SqliteText{"list"};
const SqliteValue mapType = SqliteText{"map"};
const SqliteValue dataType = SqliteText{"data"};

constexpr auto streamVersion = QDataStream::Qt_6_0;

QByteArray packed(const QStringList &strings)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    for (const QString &string : strings)
        stream << string;
    return bytes;
}

// Without a count in front, a damaged one cannot ask for absurd amounts of memory.
std::optional<QStringList> unpacked(const SqliteValue &content)
{
    const auto *bytes = std::get_if<QByteArray>(&content);
    if (!bytes)
        return std::nullopt;
    QDataStream stream(*bytes);
    stream.setVersion(streamVersion);
    QStringList strings;
    while (!stream.atEnd()) {
        QString string;
        stream >> string;
        if (stream.status() != QDataStream::Ok)
            return std::nullopt;
        strings.append(string);
    }
    return strings;
}

QStringList alternating(const StringMap &map)
{
    QStringList strings;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        strings << entry.key() << entry.value();
    return strings;
}

std::optional<DefaultsValue> decodeMap(const SqliteValue &content)
{
    const auto strings = unpacked(content);
    if (!strings || strings->size() % 2 != 0)
        return std::nullopt;
    StringMap map;
    for (qsizetype i = 0; i < strings->size(); i += 2)
        map.insert(strings->at(i), strings->at(i + 1));
    return map;
}

std::optional<DefaultsValue> decodeBoolean(const SqliteValue &content)
{
    const auto *number = std::get_if<qint64>(&content);
    return number && (*number == 0 || *number == 1) ? std::optional<DefaultsValue>(*number == 1)
                                                    : std::nullopt;
}

// SQLite has no NaN of its own and stores it as null.
std::optional<DefaultsValue> decodeDouble(const SqliteValue &content)
{
    if (std::holds_alternative<std::monostate>(content))
        return std::numeric_limits<double>::quiet_NaN();
    const auto *number = std::get_if<double>(&content);
    return number ? std::optional<DefaultsValue>(*number) : std::nullopt;
}

template <typename T>
std::optional<DefaultsValue> decodeAs(const SqliteValue &content)
{
    const T *exact = std::get_if<T>(&content);
    return exact ? std::optional<DefaultsValue>(*exact) : std::nullopt;
}

struct Encode
{
    StoredValue operator()(bool value) const { return {booleanType, qint64{value}}; }
    StoredValue operator()(qint64 value) const { return {integerType, value}; }
    StoredValue operator()(double value) const
    {
        return {doubleType, std::isnan(value) ? SqliteValue() : SqliteValue(value)};
    }
    StoredValue operator()(const QString &value) const { return {stringType, encodeString(value)}; }
    StoredValue operator()(const QStringList &value) const { return {listType, packed(value)}; }
    StoredValue operator()(const StringMap &value) const { return {mapType, packed(alternating(value))}; }
    StoredValue operator()(const QByteArray &value) const { return {dataType, value}; }
};

} // namespace

StoredValue encode(const DefaultsValue &value) { return std::visit(Encode(), value); }

std::optional<DefaultsValue> decode(const StoredValue &stored)
{
    const SqliteValue &content = stored.content;
    if (stored.type == booleanType)
        return decodeBoolean(content);
    if (stored.type == integerType)
        return decodeAs<qint64>(content);
    if (stored.type == doubleType)
        return decodeDouble(content);
    if (stored.type == stringType)
        return decodeString(content);
    if (stored.type == listType)
        return unpacked(content);
    if (stored.type == mapType)
        return decodeMap(content);
    if (stored.type == dataType)
        return decodeAs<QByteArray>(content);
    return std::nullopt;
}

SqliteValue encodeString(const QString &string)
{
    // UTF-8 has no lone surrogates, and a decoder swallows a leading byte order mark.
    if (string.isValidUtf16() && !string.startsWith(QChar(QChar::ByteOrderMark)))
        return SqliteText{string.toUtf8()};
    return packed({string});
}

std::optional<QString> decodeString(const SqliteValue &column)
{
    if (const auto *text = std::get_if<SqliteText>(&column)) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        const QString string = decoder.decode(text->utf8);
        return decoder.hasError() ? std::nullopt : std::optional(string);
    }
    const auto strings = unpacked(column);
    return strings && strings->size() == 1 ? std::optional(strings->constFirst()) : std::nullopt;
}

} // namespace Kestrune
