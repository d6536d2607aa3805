#pragma once

#include <QDateTime>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// Values as the views word them, in the language of the texts.
class Format : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// How long ago `date` was: "5m ago".
    Q_INVOKABLE static QString relativeTime(const QDateTime &date, const QDateTime &now);

    /// `text` with the digits of the locale: "٢٥" for "25" in Egypt.
    Q_INVOKABLE static QString digits(QString text);

    /// The width of the widest digit of the locale.
    Q_INVOKABLE static double digitWidth(const QFont &font);

    /// A place in a song: "3:05", or "1:00:00" from an hour on; only whole seconds count.
    Q_INVOKABLE static QString playTime(double seconds);

    /// Hours and minutes, in the locale's way.
    static QString clockTime(const QTime &time, const QLocale &locale);

    /// `text` with the program's own name in place of "%1".
    Q_INVOKABLE static QString namingHost(const QString &text);
};

} // namespace Kestrune
