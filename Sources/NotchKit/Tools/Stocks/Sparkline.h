#pragma once

#include <QPolygonF>
#include <QQuickPaintedItem>

namespace Kestrune {

/// The course of a day as a line, from the lowest point at the bottom to the highest at the top. Nothing with
/// fewer than two points.
class Sparkline : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<double> points READ points WRITE setPoints NOTIFY lineChanged)
    /// Green instead of red.
    Q_PROPERTY(bool up READ isUp WRITE setUp NOTIFY lineChanged)

public:
    explicit Sparkline(QQuickItem *parent = nullptr);

    QList<double> points() const { return m_points; }
    void setPoints(const QList<double> &points);
    bool isUp() const { return m_up; }
    void setUp(bool up);

    void paint(QPainter *painter) override;

    /// The line's corners within that size.
    static QPolygonF line(const QList<double> &points, const QSizeF &size);

Q_SIGNALS:
    void lineChanged();

private:
    QList<double> m_points;
    bool m_up = true;
};

} // namespace Kestrune
