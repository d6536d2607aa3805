#pragma once

#include "NotchKit/Spring.h"

#include <QAbstractAnimation>
#include <QObject>
#include <QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// A number that a spring pulls to its target. A new target, response or damping takes over from the
/// present position and speed. The first target is taken without motion.
class SpringValue : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(double target READ target WRITE setTarget NOTIFY targetChanged)
    /// Seconds of one undamped period.
    Q_PROPERTY(double response READ response WRITE setResponse NOTIFY springChanged)
    Q_PROPERTY(double dampingFraction READ dampingFraction WRITE setDampingFraction NOTIFY springChanged)
    /// The distance from the target, and the way per frame, at which the motion counts as over.
    Q_PROPERTY(double precision MEMBER m_precision)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    Q_PROPERTY(bool running READ running NOTIFY runningChanged)

public:
    explicit SpringValue(QObject *parent = nullptr);

    double target() const { return m_target; }
    void setTarget(double target);
    double response() const { return m_response; }
    void setResponse(double response);
    double dampingFraction() const { return m_damping; }
    void setDampingFraction(double damping);
    double value() const { return m_state.position; }
    bool running() const { return m_ticker.state() == QAbstractAnimation::Running; }

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void targetChanged();
    void springChanged();
    void valueChanged();
    void runningChanged();

private:
    /// Follows the view's frames while the spring moves.
    class Ticker : public QAbstractAnimation
    {
    public:
        explicit Ticker(SpringValue &spring)
            : m_spring(spring)
        {}
        int duration() const override { return -1; }

    protected:
        void updateCurrentTime(int milliseconds) override { m_spring.advance(milliseconds); }

    private:
        SpringValue &m_spring;
    };

    void restart();
    void advance(int milliseconds);
    void finish();

    Ticker m_ticker;
    bool m_complete = false;
    double m_target = 0;
    double m_response = 0.42;
    double m_damping = 0.8;
    double m_precision = 0.05;
    Spring::State m_start; ///< Where the motion to the present target began.
    Spring::State m_state; ///< Where it is now.
};

} // namespace Kestrune
