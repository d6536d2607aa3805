#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QQmlIncubationController>

namespace Kestrune {

/// Makes what views are made ahead of their use, a few milliseconds at a time, with a pause after each for
/// everything else. Nothing runs while there is nothing to make. Main thread only.
class SlicedIncubation : public QObject, public QQmlIncubationController
{
    Q_OBJECT

protected:
    void incubatingObjectCountChanged(int count) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QBasicTimer m_pause;
};

} // namespace Kestrune
