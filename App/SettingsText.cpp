#include "SettingsText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <QLocale>

#include <array>
#include <cmath>

namespace Kestrune::SettingsText {

namespace {

QString compact(const QJsonDocument &json) { return QString::fromUtf8(json.toJson(QJsonDocument::Compact)); }

QString text(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
QString text(qint64 value) { return QString::number(value); }
QString text(double value) { return QString::number(value, 'g', QLocale::FloatingPointShortest); }
QString text(const QString &value) { return value; }
QString text(const QByteArray &value) { return QString::fromLatin1(value.toBase64()); }
QString text(const QStringList &value) { return compact(QJsonDocument(QJsonArray::fromStringList(value))); }
QString text(const StringMap &value)
{
    QJsonObject object;
    for (const auto &[key, entry] : value.asKeyValueRange())
        object.insert(key, entry);
    return compact(QJsonDocument(object));
}

template <typename Type>
std::optional<Type> read(const QString &text);

template <>
std::optional<bool> read(const QString &text)
{
    if (text == QLatin1String("true"))
        return true;
    return text == QLatin1String("false") ? std::optional(false) : std::nullopt;
}

template <>
std::optional<qint64> read(const QString &text)
{
    bool valid = false;
    const qint64 value = text.toLongLong(&valid);
    return valid ? std::optional(value) : std::nullopt;
}

template <>
std::optional<double> read(const QString &text)
{
    bool valid = false;
    const double value = text.toDouble(&valid);
    return valid && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

template <>
std::optional<QString> read(const QString &text)
{
    return text;
}

template <>
std::optional<QByteArray> read(const QString &text)
{
    auto decoded = QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(*decoded) : std::nullopt;
}

template <>
std::optional<QStringList> read(const QString &text)
{
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    if (!json.isArray())
        return std::nullopt;
    QStringList list;
    for (const QJsonValue entry : json.array()) {
        if (!entry.isString())
            return std::nullopt;
        list.append(entry.toString());
    }
    return list;
}

template <>
std::optional<StringMap> read(const QString &text)
{
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    if (!json.isObject())
        return std::nullopt;
    StringMap map;
    const QJsonObject object = json.object();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (!entry->isString())
            return std::nullopt;
        map.insert(entry.key(), entry->toString());
    }
    return map;
}

} // namespace

QString format(const std::optional<DefaultsValue> &value)
{
    return value ? std::visit([](const auto &held) { return text(held); }, *value) : QString();
}

std::optional<DefaultsValue> parse(const QString &text, const DefaultsValue &example)
{
    return std::visit(
        [&]<typename Type>(const Type &) -> std::optional<DefaultsValue> {
            const auto value = read<Type>(text);
            return value ? std::optional<DefaultsValue>(*value) : std::nullopt;
        },
        example);
}

QString expectation(const DefaultsValue &example)
{
    static constexpr std::array names{"true or false", "a whole number",         "a number",
                                      "a text",        "a JSON list of strings", "a JSON map of strings",
                                      "base64 data"};
    static_assert(names.size() == std::variant_size_v<DefaultsValue>);
    return QString::fromLatin1(names[example.index()]);
}

} // namespace Kestrune::SettingsText
