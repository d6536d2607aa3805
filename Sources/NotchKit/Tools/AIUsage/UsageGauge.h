#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// How a gauge shows a fraction, which may lie outside 0 to 1.
class UsageGauge : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// How much of a track of `width` is filled: never so little that it is not seen.
    Q_INVOKABLE static double filled(double fraction, double width);

    /// Green, orange above 60 %, red above 85 %.
    Q_INVOKABLE static QColor color(double fraction);

    /// "42%", from 0 to 100.
    Q_INVOKABLE static QString percent(double fraction);
};

} // namespace Kestrune
