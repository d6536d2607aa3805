#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

#include <memory>

class QDBusConnection;

/// A pointer and a keyboard as one kind of compositor lets a test have them; they stay plugged in as long as
/// the object. Every call has reached the compositor when it returns. Keys are the kernel's.
class InputDevices
{
public:
    virtual ~InputDevices() = default;

    /// Whether the compositor gives them.
    virtual bool areReady() const = 0;

    /// To a place as tablets do, on displays that are together of the size `extent`.
    virtual void move(QPoint place, QSize extent) = 0;
    /// As a mouse does.
    virtual void push(QPoint by) = 0;
    virtual void button(bool down) = 0;
    virtual void key(int code, bool down) = 0;
};

/// Of compositors made with wlroots: its virtual pointer and keyboard.
std::unique_ptr<InputDevices> makeVirtualDevices(const QString &socket);

/// Of KWin: its fake input.
std::unique_ptr<InputDevices> makeFakeInput(const QString &socket);

/// Of Mutter: a session of its remote desktop, on its bus.
std::unique_ptr<InputDevices> makeRemoteDesktop(const QDBusConnection &bus);
