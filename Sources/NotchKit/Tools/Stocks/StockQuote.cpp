#include "StockQuote.h"

#include "NotchKit/Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace Kestrune {

namespace {

constexpr qsizetype kLongestCurrency = 5; // Characters; a code has three.

/// The first object of a list, empty for anything else.
QJsonObject first(const QJsonValue &list) { return list.toArray().at(0).toObject(); }

QString firstText(const QJsonObject &object, std::initializer_list<QLatin1String> keys)
{
    for (const QLatin1String key : keys) {
        if (const QString text = object.value(key).toString(); !text.isEmpty())
            return text;
    }
    return {};
}

} // namespace

std::optional<StockQuote> parseQuote(const QString &symbol, const QByteArray &body)
{
    const QJsonObject result =
        first(QJsonDocument::fromJson(body)[QLatin1String("chart")][QLatin1String("result")]);
    const QJsonObject meta = result.value(QLatin1String("meta")).toObject();
    const auto price = number(meta.value(QLatin1String("regularMarketPrice")));
    if (!price)
        return std::nullopt;

    StockQuote quote;
    quote.symbol = symbol;
    quote.price = *price;
    quote.previousClose = number(meta.value(QLatin1String("chartPreviousClose")))
                              .value_or(number(meta.value(QLatin1String("previousClose"))).value_or(0));
    quote.name = firstText(meta, {QLatin1String("shortName"), QLatin1String("longName")});
    if (quote.name.isEmpty())
        quote.name = symbol;
    const bool isIndex = meta.value(QLatin1String("instrumentType")).toString() == QLatin1String("INDEX");
    if (const QJsonValue currency = meta.value(QLatin1String("currency")); currency.isString() && !isIndex)
        quote.currency = currency.toString().left(kLongestCurrency).simplified();
    const QJsonObject prices = first(result.value(QLatin1String("indicators"))[QLatin1String("quote")]);
    for (const QJsonValue point : prices.value(QLatin1String("close")).toArray()) {
        if (const auto known = number(point))
            quote.points.append(*known);
    }
    return quote;
}

QStringList stockSymbols(const QString &draft)
{
    static const QRegularExpression gap(QStringLiteral("[,\\s]+"),
                                        QRegularExpression::UseUnicodePropertiesOption);
    QStringList symbols = draft.toUpper().split(gap, Qt::SkipEmptyParts);
    symbols.removeDuplicates();
    return symbols;
}

} // namespace Kestrune
