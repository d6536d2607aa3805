#pragma once

#include "NotchKit/Kit/ScrollGlide.h"
#include "ScriptLayout.h"

#include <QAbstractAnimation>
#include <QBasicTimer>
#include <QQuickPaintedItem>
#include <QTextLayout>

#include <limits>
#include <map>

namespace Kestrune {

/// The scrolling script: centred lines whose first stands a third of the way down, faded at both ends. Only
/// the lines in sight are drawn, and only when they have moved by a pixel of the display.
class PrompterScript : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY fontSizeChanged)
    /// How far the script has scrolled up, which moves twenty times a second while `playing`; the script
    /// itself glides after it.
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY offsetChanged)
    /// Points per second.
    Q_PROPERTY(double speed MEMBER m_speed NOTIFY speedChanged)
    Q_PROPERTY(bool playing READ playing WRITE setPlaying NOTIFY playingChanged)
    /// The offset at which the whole script has passed; infinite until all of it is laid out.
    Q_PROPERTY(double end READ end NOTIFY endChanged)

public:
    explicit PrompterScript(QQuickItem *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    double fontSize() const { return m_fontSize; }
    void setFontSize(double size);
    double offset() const { return m_glide.target(); }
    void setOffset(double offset);
    bool playing() const { return m_playing; }
    void setPlaying(bool playing);
    double end() const { return m_end; }

    /// The offset that is drawn now.
    double shownOffset() const { return m_glide.position(); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void textChanged();
    void fontSizeChanged();
    void offsetChanged();
    void speedChanged();
    void playingChanged();
    void endChanged();

    /// The lines break anew: the text that was being read is now at this offset.
    void placeMoved(double offset);

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;
    void timerEvent(QTimerEvent *event) override;

private:
    /// Follows the view's frames while the script moves.
    class Ticker : public QAbstractAnimation
    {
    public:
        explicit Ticker(PrompterScript &script)
            : m_script(script)
        {}
        int duration() const override { return -1; }

    protected:
        void updateCurrentTime(int milliseconds) override { m_script.glide(milliseconds); }

    private:
        PrompterScript &m_script;
    };

    double top() const; ///< Of the script in the item, on a whole pixel of the display.
    void breakAnew(bool keepPlace);
    void redrawIfMoved();
    void beginLayout();
    void layOutRest();
    void setEnd(double end);
    void animate();
    void glide(int milliseconds);
    void drawLines(QPainter *painter);
    void fadeEnds(QPainter *painter) const;

    QString m_text;
    double m_fontSize = 22;
    double m_speed = 28;
    double m_end = std::numeric_limits<double>::infinity();
    double m_drawnTop = 0;
    bool m_playing = false;
    bool m_broken = true;     ///< The lines do not fit any more.
    qsizetype m_reading = -1; ///< The text at the top of what is read, to be found again; or none.
    int m_time = 0;           ///< Of the last frame of the motion, in milliseconds.
    ScrollGlide m_glide;
    ScriptLayout m_layout;
    std::map<std::size_t, std::unique_ptr<QTextLayout>> m_shaped; ///< The lines in sight.
    QBasicTimer m_rest;
    Ticker m_ticker;
};

} // namespace Kestrune
