#include "QuoteFormat.h"

#include "NotchKit/NotchStrings.h"

#include <QHash>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr int kMostDecimals = 10;

/// The most decimals that a price of that size is written with.
int mostDecimals(double price)
{
    const double size = std::abs(price);
    if (size >= 100'000)
        return 0;
    if (size >= 10 || size == 0)
        return 2;
    return std::clamp(3 - static_cast<int>(std::floor(std::log10(size))), 4, kMostDecimals);
}

/// Two at least where there are any; no further zeros.
int decimals(double price)
{
    const int most = mostDecimals(price);
    QString digits = QString::number(price, 'f', most);
    int count = most;
    for (; count > 2 && digits.endsWith(QLatin1Char('0')); --count)
        digits.chop(1);
    return count;
}

/// The sign of a currency where everybody knows it and it is not that of the locale's own one, else its code.
QString signOf(const QString &currency, const QLocale &locale)
{
    static const QHash<QString, QString> signs{
        {QStringLiteral("USD"), QStringLiteral("$")}, {QStringLiteral("EUR"), QStringLiteral("€")},
        {QStringLiteral("GBP"), QStringLiteral("£")}, {QStringLiteral("JPY"), QStringLiteral("¥")},
        {QStringLiteral("KRW"), QStringLiteral("₩")}, {QStringLiteral("INR"), QStringLiteral("₹")},
    };
    if (locale.currencySymbol(QLocale::CurrencyIsoCode) == currency)
        return locale.currencySymbol();
    const QString sign = signs.value(currency);
    return sign.isEmpty() || sign == locale.currencySymbol() ? currency : sign;
}

} // namespace

QString QuoteFormat::price(double price, const QString &currency)
{
    const QLocale locale;
    const int count = decimals(price);
    if (currency.isEmpty())
        return locale.toString(price, 'f', count);
    const QString sign = signOf(currency, locale);
    QString text = locale.toCurrencyString(price, sign, count);
    // Locales are made for signs: they write a code before the number without a gap.
    const qsizetype end = text.indexOf(sign) + sign.size();
    if (sign.back().isLetter() && end < text.size() && text.at(end).isDigit())
        text.insert(end, QChar::Nbsp);
    return text;
}

QString QuoteFormat::change(double fraction)
{
    const double percent = std::round(std::clamp(fraction, -1e6, 1e6) * 10'000) / 100;
    const QLocale locale;
    const QString sign = percent > 0 ? QStringLiteral("+") : percent < 0 ? QStringLiteral("−") : QString();
    //: %1 is a number, with decimals where it is the change of a share’s price.
    return sign +
           notchStrings(QT_TRANSLATE_NOOP("notch", "%1%")).arg(locale.toString(std::abs(percent), 'f', 2));
}

QString QuoteFormat::notFound(const QStringList &symbols)
{
    //: %1 is a list of the symbols of shares.
    return notchStrings(QT_TRANSLATE_NOOP("notch", "Not found: %1")).arg(symbols.join(QStringLiteral(", ")));
}

QString QuoteFormat::gaps(const QStringList &notFound, const QStringList &unreached, const QString &age)
{
    QStringList parts;
    if (!age.isEmpty())
        parts.append(age);
    if (!unreached.isEmpty())
        //: The prices of shares, which a server on the web tells.
        parts.append(notchStrings(QT_TRANSLATE_NOOP("notch", "Quotes are not available right now.")));
    if (!notFound.isEmpty())
        parts.append(QuoteFormat::notFound(notFound));
    return parts.join(QStringLiteral(" · "));
}

} // namespace Kestrune
