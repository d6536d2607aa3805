#include "SlicedIncubation.h"

namespace Kestrune {

namespace {

constexpr int kSlice = 3;  // ms; one object more may begin before they are over
constexpr int kPause = 20; // ms, from one slice's begin to the next's

} // namespace

void SlicedIncubation::incubatingObjectCountChanged(int count)
{
    if (count == 0)
        m_pause.stop();
    else if (!m_pause.isActive())
        m_pause.start(kPause, this);
}

void SlicedIncubation::timerEvent(QTimerEvent *) { incubateFor(kSlice); }

} // namespace Kestrune
