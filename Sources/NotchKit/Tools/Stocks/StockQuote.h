#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace Kestrune {

/// One instrument: where it stands and how it got there today.
class StockQuote
{
    Q_GADGET
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double price MEMBER price)
    Q_PROPERTY(double change READ change)
    Q_PROPERTY(QString currency READ currencyText)
    Q_PROPERTY(QList<double> points MEMBER points)

public:
    QString symbol; ///< As the user wrote it.
    QString name;
    double price = 0;
    double previousClose = 0;        ///< 0 where it is not known.
    std::optional<QString> currency; ///< As the service names it: "USD". An index has none: it counts points.
    QList<double> points;            ///< The day's prices, oldest first.

    /// Against the previous close, as a fraction: 0.01 is one per cent up.
    double change() const { return previousClose > 0 ? (price - previousClose) / previousClose : 0; }

    QString currencyText() const { return currency.value_or(QString()); }

    bool operator==(const StockQuote &) const = default;
};

/// The quote of `symbol` in the body of a chart; nothing without a price.
std::optional<StockQuote> parseQuote(const QString &symbol, const QByteArray &body);

/// The symbols in what the user typed, in their order: upper case, parted by commas and blanks, each once.
QStringList stockSymbols(const QString &draft);

} // namespace Kestrune
