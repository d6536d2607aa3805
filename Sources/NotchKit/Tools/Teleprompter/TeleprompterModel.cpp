#include "TeleprompterModel.h"

#include "NotchKit/NotchSettings.h"

#include <algorithm>

namespace Kestrune {

namespace {

constexpr double kTicksPerSecond = 20;

}

TeleprompterModel::TeleprompterModel(NotchSettings &settings, QObject *parent)
    : ToolModel(NotchTool::teleprompter, parent)
    , m_settings(settings)
{}

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
    scrollTo(m_offset);
}

void TeleprompterModel::restart() { m_offset = 0; }

void TeleprompterModel::scrollTo(double offset)
{
    m_offset = std::max(std::min(offset, +m_maximumOffset), 0.0);
}

void TeleprompterModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible != tool())
        setPlaying(false);
}

void TeleprompterModel::fastTick(qint64 /*count*/)
{
    if (!m_playing)
        return;
    scrollTo(m_offset + m_settings.prompterSpeed() / kTicksPerSecond);
    if (m_offset >= m_maximumOffset)
        m_playing = false;
}

} // namespace Kestrune
