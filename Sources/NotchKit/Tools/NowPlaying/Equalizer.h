#pragma once

#include <QBasicTimer>
#include <QColor>
#include <QQuickPaintedItem>

namespace Kestrune {

/// Four bars that move while a song plays and the item can be seen, and else rest. Each step draws the item
/// alone and once.
class Equalizer : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool playing READ playing WRITE setPlaying NOTIFY playingChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY colorChanged)

public:
    static constexpr int kBars = 4;

    explicit Equalizer(QQuickItem *parent = nullptr);

    bool playing() const { return m_playing; }
    void setPlaying(bool playing);

    /// How high a bar stands after so many steps, from 0 to 1.
    static double height(int bar, int step);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void playingChanged();
    void colorChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void follow();

    bool m_playing = false;
    QColor m_color = Qt::white;
    int m_step = 0;
    QBasicTimer m_timer;
};

} // namespace Kestrune
