#include "Sparkline.h"

#include "NotchKit/Kit/Palette.h"

#include <QPainter>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr double kWidth = 1.6;
constexpr double kLeastRange = 0.0001; // a day without any change is a flat line

} // namespace

Sparkline::Sparkline(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &Sparkline::lineChanged, this, [this] { update(); });
}

void Sparkline::setPoints(const QList<double> &points)
{
    if (std::exchange(m_points, points) != points)
        Q_EMIT lineChanged();
}

void Sparkline::setUp(bool up)
{
    if (std::exchange(m_up, up) != up)
        Q_EMIT lineChanged();
}

QPolygonF Sparkline::line(const QList<double> &points, const QSizeF &size)
{
    if (points.size() < 2)
        return {};
    const auto [low, high] = std::ranges::minmax(points);
    const double range = std::max(high - low, kLeastRange);
    QPolygonF line;
    line.reserve(points.size());
    for (qsizetype i = 0; i < points.size(); ++i) {
        const double along = static_cast<double>(i) / static_cast<double>(points.size() - 1);
        line.append({size.width() * along, size.height() * (1 - (points.at(i) - low) / range)});
    }
    return line;
}

void Sparkline::paint(QPainter *painter)
{
    // The item ends where the middle of the line may lie; half the line's width is kept free all around.
    const QRectF inside = boundingRect().adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2);
    QPen pen(m_up ? Palette::kGreen : Palette::kRed, kWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pen.setMiterLimit(10);
    painter->setPen(pen);
    painter->drawPolyline(line(m_points, inside.size()).translated(inside.topLeft()));
}

} // namespace Kestrune
