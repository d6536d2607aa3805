#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// Keeps text fields from reading the clipboard on their own.
class ClipboardGuard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// A field asks for the clipboard's text after every copy, only to know whether pasting would do
    /// anything. That reads what nobody pasted here, a password too, and waits seconds for a program that
    /// does not answer. A detached field reads the clipboard when the user pastes.
    Q_INVOKABLE static void detach(QObject *field);
};

} // namespace Kestrune
