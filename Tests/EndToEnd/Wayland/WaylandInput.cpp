#include "EndToEnd/Wayland/WaylandInput.h"

#include "EndToEnd/Waiting.h"

#include <array>

#include <linux/input-event-codes.h>

void WaylandInput::put(QPoint place)
{
    m_devices->move(place, m_extent);
    m_place = place;
}

void WaylandInput::move(QPoint place)
{
    if (m_isMouse && m_place)
        push(place - *m_place);
    else
        put(place);
}

void WaylandInput::push(QPoint by)
{
    m_devices->push(by);
    if (m_place)
        *m_place += by;
}

void WaylandInput::glide(QPoint from, QPoint to)
{
    constexpr int steps = 12;
    move(from);
    QPoint place = from;
    for (int step = 1; step <= steps; ++step) {
        const QPoint next = from + (to - from) * step / steps;
        QTest::qWait(30);
        push(next - std::exchange(place, next));
    }
}

void WaylandInput::click(QPoint place)
{
    move(place);
    pressButton();
    releaseButton();
}

void WaylandInput::tap(int code)
{
    key(code, true);
    QTest::qWait(30);
    key(code, false);
}

void WaylandInput::hotKey()
{
    constexpr std::array modifiers{KEY_LEFTCTRL, KEY_LEFTALT, KEY_LEFTMETA};
    for (const int code : modifiers)
        key(code, true);
    tap(KEY_N);
    for (const int code : modifiers)
        key(code, false);
}
