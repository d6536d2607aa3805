#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

#include <memory>

/// The pointer and the keyboard of a compositor, moved and pressed as a person would; they stay plugged in as
/// long as the object. Every call has reached the compositor when it returns.
class WaylandInput
{
public:
    /// `socket` is the compositor's, with its folder.
    explicit WaylandInput(const QString &socket);
    ~WaylandInput();
    Q_DISABLE_COPY_MOVE(WaylandInput)

    /// Whether the compositor lets a test give input.
    bool isReady() const;

    /// The size of all displays together, where they begin at the origin.
    void setExtent(QSize extent) { m_extent = extent; }

    void move(QPoint place);
    /// As a mouse does, from where it is.
    void push(QPoint by);
    /// In small steps, as a hand does with a mouse.
    void glide(QPoint from, QPoint to);
    void pressButton();
    void releaseButton();
    void click(QPoint place);

    /// Keys are the kernel's, KEY_ESC and the like.
    void key(int code, bool down);
    void tap(int code);

private:
    void sync();

    struct Devices;
    std::unique_ptr<Devices> m_devices;
    QSize m_extent{1280, 800};
};
