#pragma once

#include "EndToEnd/Wayland/InputDevices.h"

#include <optional>

/// The pointer and the keyboard of a compositor, moved and pressed as a person would.
class WaylandInput
{
public:
    explicit WaylandInput(std::unique_ptr<InputDevices> devices)
        : m_devices(std::move(devices))
    {}

    /// Whether the compositor lets a test give input.
    bool isReady() const { return m_devices->areReady(); }

    /// The size of all displays together, where they begin at the origin.
    void setExtent(QSize extent) { m_extent = extent; }

    /// From now on it moves as a mouse does: the server of guests may tell nothing of another pointer's
    /// leaving.
    void beMouse() { m_isMouse = true; }
    bool isMouse() const { return m_isMouse; }

    /// Puts it there, wherever it is.
    void put(QPoint place);
    void move(QPoint place);
    /// As a mouse does, from where it is.
    void push(QPoint by);
    /// In small steps, as a hand does with a mouse.
    void glide(QPoint from, QPoint to);
    void pressButton() { m_devices->button(true); }
    void releaseButton() { m_devices->button(false); }
    void click(QPoint place);

    /// Keys are the kernel's, KEY_ESC and the like.
    void key(int code, bool down) { m_devices->key(code, down); }
    void tap(int code);
    /// The combination that opens and closes the notch.
    void hotKey();

private:
    std::unique_ptr<InputDevices> m_devices;
    QSize m_extent{1280, 800};
    std::optional<QPoint> m_place; ///< Where it is.
    bool m_isMouse = false;
};
