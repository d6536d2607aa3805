#include "Equalizer.h"

#include <QPainter>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <cmath>

namespace Kestrune {

namespace {

constexpr int kDanceStep = 100; // ms; slow enough to cost next to nothing, fast enough to dance.
constexpr double kLeast = 0.18;

/// Two swings of each bar, in radians a step: the bars never fall into step with each other.
constexpr std::array<std::array<double, 2>, Equalizer::kBars> kSwings{
    {{0.71, 1.63}, {0.97, 2.11}, {0.83, 1.37}, {1.09, 1.87}}};

} // namespace

Equalizer::Equalizer(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void Equalizer::setPlaying(bool playing)
{
    if (std::exchange(m_playing, playing) == playing)
        return;
    follow();
    Q_EMIT playingChanged();
}

void Equalizer::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemSceneChange && data.window)
        connect(data.window, &QWindow::visibleChanged, this, &Equalizer::follow);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        follow();
}

/// Moves or rests.
void Equalizer::follow()
{
    const bool moves = m_playing && isVisible() && window() && window()->isVisible();
    if (moves == m_timer.isActive())
        return;
    if (moves)
        m_timer.start(kDanceStep, this);
    else
        m_timer.stop();
    update();
}

void Equalizer::timerEvent(QTimerEvent *)
{
    ++m_step;
    update();
}

double Equalizer::height(int bar, int step)
{
    const auto &[slow, fast] = kSwings.at(static_cast<std::size_t>(bar));
    const double swing = 0.6 * std::sin(slow * step + bar) + 0.4 * std::sin(fast * step);
    return kLeast + (1 - kLeast) * (swing + 1) / 2;
}

void Equalizer::paint(QPainter *painter)
{
    constexpr double kGap = 2;
    const double bar = (width() - kGap * (kBars - 1)) / kBars;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_color);
    for (int i = 0; i < kBars; ++i) {
        const double tall = std::max(bar, QQuickItem::height() * (m_playing ? height(i, m_step) : 0));
        painter->drawRoundedRect(QRectF(i * (bar + kGap), (QQuickItem::height() - tall) / 2, bar, tall),
                                 bar / 2, bar / 2);
    }
}

} // namespace Kestrune
