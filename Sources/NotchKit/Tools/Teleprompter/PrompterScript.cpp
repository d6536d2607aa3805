#include "PrompterScript.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickWindow>

#include <cmath>

namespace Kestrune {

namespace {

constexpr double kFirstLine = 0.35; // Of the height: just below the camera.
constexpr double kFade = 0.18;      // Of the height, at either end.
constexpr int kSlice = 3;           // ms of laying out between two frames

QFont scriptFont(double size)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(qRound(size), 1));
    font.setWeight(QFont::DemiBold);
    return font;
}

/// One kind of line end.
QString plainLines(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QChar end : {QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(end, QLatin1Char('\n'));
    return text;
}

} // namespace

PrompterScript::PrompterScript(QQuickItem *parent)
    : QQuickPaintedItem(parent)
    , m_ticker(*this)
{}

void PrompterScript::setText(const QString &text)
{
    const QString plain = plainLines(text);
    if (m_text == plain)
        return;
    m_text = plain;
    breakAnew(false);
    Q_EMIT textChanged();
}

void PrompterScript::setFontSize(double size)
{
    if (std::exchange(m_fontSize, size) == size)
        return;
    breakAnew(true);
    Q_EMIT fontSizeChanged();
}

void PrompterScript::setOffset(double offset)
{
    if (m_glide.target() == offset)
        return;
    if (m_ticker.state() == QAbstractAnimation::Running)
        m_glide.setTarget(offset);
    else
        m_glide.jump(offset);
    redrawIfMoved();
    Q_EMIT offsetChanged();
}

void PrompterScript::setPlaying(bool playing)
{
    if (std::exchange(m_playing, playing) == playing)
        return;
    animate();
    Q_EMIT playingChanged();
}

double PrompterScript::top() const
{
    const double ratio = window() ? window()->effectiveDevicePixelRatio() : 1;
    return std::round((height() * kFirstLine - m_glide.position()) * ratio) / ratio;
}

void PrompterScript::breakAnew(bool keepPlace)
{
    const bool known = keepPlace && !m_broken && m_glide.target() > 0 && !m_layout.lines().empty();
    if (known) {
        const std::size_t line = std::min(m_layout.lineBelow(m_glide.target()), m_layout.lines().size() - 1);
        m_reading = m_layout.lines()[line].start;
    } else if (!keepPlace) {
        m_reading = -1;
    }
    m_broken = true;
    setEnd(std::numeric_limits<double>::infinity());
    polish();
}

/// Both are asked for at once: what polishing asks for would take a second frame.
void PrompterScript::redrawIfMoved()
{
    if (top() == m_drawnTop)
        return;
    polish();
    update();
}

void PrompterScript::beginLayout()
{
    m_broken = false;
    m_shaped.clear();
    m_layout.begin(m_text, scriptFont(m_fontSize), width());
    if (m_reading >= 0) {
        m_layout.advancePast(m_reading);
        Q_EMIT placeMoved(m_layout.lines()[m_layout.lineAt(std::exchange(m_reading, -1))].top);
    }
    update();
}

void PrompterScript::updatePolish()
{
    if (!isVisible() || width() <= 0)
        return;
    if (m_broken)
        beginLayout();
    m_layout.advanceTo(m_glide.position() + height());
    if (std::isinf(m_end) && !m_rest.isActive())
        m_rest.start(0, this);
}

void PrompterScript::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_rest.timerId())
        layOutRest();
    else
        QQuickPaintedItem::timerEvent(event);
}

/// The part of the script that is not in sight yet, a little at a time.
void PrompterScript::layOutRest()
{
    QElapsedTimer time;
    time.start();
    while (!m_broken && !m_layout.isComplete() && time.elapsed() < kSlice)
        m_layout.advance();
    if (!m_broken && !m_layout.isComplete())
        return;
    m_rest.stop();
    if (!m_broken)
        setEnd(m_layout.height());
}

void PrompterScript::setEnd(double end)
{
    if (std::exchange(m_end, end) != end)
        Q_EMIT endChanged();
}

void PrompterScript::animate()
{
    const bool moves = isVisible() && (m_playing || !m_glide.arrived());
    if (!moves) {
        m_ticker.stop();
        m_glide.jump(m_glide.target());
    } else if (m_ticker.state() != QAbstractAnimation::Running) {
        m_time = 0;
        m_ticker.start();
    }
}

void PrompterScript::glide(int milliseconds)
{
    m_glide.advance((milliseconds - m_time) / 1000.0, m_speed, !m_playing);
    m_time = milliseconds;
    redrawIfMoved();
    if (!m_playing && m_glide.arrived())
        animate();
}

void PrompterScript::paint(QPainter *painter)
{
    m_drawnTop = top();
    drawLines(painter);
    fadeEnds(painter);
}

void PrompterScript::drawLines(QPainter *painter)
{
    const auto &lines = m_layout.lines();
    const std::size_t first = m_layout.lineBelow(-m_drawnTop);
    std::size_t next = first;
    painter->setPen(Qt::white);
    for (; next < lines.size() && m_drawnTop + lines[next].top < height(); ++next) {
        auto &shaped = m_shaped[next];
        if (!shaped)
            shaped = m_layout.shaped(lines[next]);
        shaped->draw(painter, QPointF(0, m_drawnTop + lines[next].top));
    }
    std::erase_if(m_shaped, [&](const auto &shaped) { return shaped.first < first || shaped.first >= next; });
}

void PrompterScript::fadeEnds(QPainter *painter) const
{
    const double band = height() * kFade;
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setStops(
        {{0, Qt::transparent}, {kFade, Qt::black}, {1 - kFade, Qt::black}, {1, Qt::transparent}});
    painter->setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter->fillRect(QRectF(0, 0, width(), band), gradient);
    painter->fillRect(QRectF(0, height() - band, width(), band), gradient);
}

void PrompterScript::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    if (now.width() != before.width())
        breakAnew(true);
    update();
    polish();
}

void PrompterScript::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged) {
        animate();
        polish();
    }
}

} // namespace Kestrune
