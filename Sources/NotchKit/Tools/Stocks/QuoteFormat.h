#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// Prices and changes as the views write them, in the user's locale.
class QuoteFormat : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// With the digits that suit its size: "1,234,568", "187.30", "1.0842", "0.00001234"; and in the currency
    /// that the service names, if any: "$187.30", "CHF 187.30".
    Q_INVOKABLE static QString price(double price, const QString &currency = QString());

    /// A fraction as a signed percentage with two decimals: "+1.24%"; no sign where it rounds to zero.
    Q_INVOKABLE static QString change(double fraction);

    /// The symbols that were not found, in one sentence.
    Q_INVOKABLE static QString notFound(const QStringList &symbols);

    /// What is missing and how old the rest is, in one line; empty where nothing is.
    Q_INVOKABLE static QString gaps(const QStringList &notFound, const QStringList &unreached,
                                    const QString &age);
};

} // namespace Kestrune
