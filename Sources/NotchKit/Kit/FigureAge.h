#pragma once

#include <QDateTime>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// How the views date figures that could not be fetched anew.
class FigureAge : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// "As of 23:00", with the day where it is not today's; empty for an invalid time.
    Q_INVOKABLE static QString text(const QDateTime &time, const QDateTime &now);
};

} // namespace Kestrune
