#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// The icon font and the table that maps each symbol name to one of its glyphs.
class Symbols : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString family READ family CONSTANT)

public:
    using QObject::QObject;

    /// The embedded font's family; loaded on first use.
    static QString family();

    /// Every symbol name that has a glyph.
    static QStringList names();

    /// The glyph of the symbol `name`, one character of `family`; empty for an unknown name.
    Q_INVOKABLE static QString glyph(const QString &name);
};

} // namespace Kestrune
