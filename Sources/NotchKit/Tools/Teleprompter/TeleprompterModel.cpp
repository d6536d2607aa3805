#include "TeleprompterModel.h"

#include "NotchKit/NotchSettings.h"

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr double kTicksPerSecond = 20;
constexpr double kMostSeconds = 24 * 3600.0;

} // namespace

TeleprompterModel::TeleprompterModel(NotchSettings &settings, QObject *parent)
    : ToolModel(NotchTool::teleprompter, parent)
    , m_settings(settings)
{
    m_secondsLeft.setBinding([this] { return computeSecondsLeft(); });
}

void TeleprompterModel::setPlaying(bool playing)
{
    if (playing && !m_playing) {
        m_editing = false;
        if (m_offset >= m_maximumOffset)
            restart();
    }
    m_playing = playing;
}

void TeleprompterModel::setEditing(bool editing)
{
    if (editing)
        m_playing = false;
    m_editing = editing;
}

void TeleprompterModel::setMaximumOffset(double maximum)
{
    m_maximumOffset = maximum;
    scrollTo(m_wantedPosition && std::isfinite(maximum) ? *m_wantedPosition * maximum : m_offset);
}

void TeleprompterModel::restart()
{
    m_wantedPosition.reset();
    m_offset = 0;
}

std::optional<double> TeleprompterModel::position() const
{
    const double all = m_maximumOffset;
    if (!std::isfinite(all) || m_wantedPosition)
        return m_wantedPosition;
    return all > 0 ? m_offset / all : 0;
}

void TeleprompterModel::moveTo(double position)
{
    const double wanted = std::clamp(position, 0.0, 1.0);
    if (std::isfinite(maximumOffset()))
        scrollTo(wanted * m_maximumOffset);
    else
        m_wantedPosition = wanted;
}

int TeleprompterModel::computeSecondsLeft() const
{
    const double seconds = (m_maximumOffset - m_offset) / m_settings.bindablePrompterSpeed().value();
    return seconds >= 0 && seconds <= kMostSeconds ? static_cast<int>(std::ceil(seconds)) : -1;
}

void TeleprompterModel::scrollTo(double offset)
{
    if (std::isfinite(maximumOffset()))
        m_wantedPosition.reset();
    m_offset = std::max(std::min(offset, +m_maximumOffset), 0.0);
}

void TeleprompterModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible != tool())
        setPlaying(false);
}

void TeleprompterModel::fastTick()
{
    if (!m_playing)
        return;
    scrollTo(m_offset + m_settings.prompterSpeed() / kTicksPerSecond);
    if (m_offset >= m_maximumOffset)
        m_playing = false;
}

} // namespace Kestrune
