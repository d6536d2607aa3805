#pragma once

#include "Async/Worker.h"
#include "NotchKit/Platform/SoundPlayer.h"

namespace Kestrune {

/// Alert sounds through libcanberra, which follows the desktop's sound settings. The sounds are built into
/// the program. Nothing is loaded, connected or kept between two sounds.
class CanberraSounds : public SoundPlayer
{
public:
    void play(const QString &name) override;

private:
    Worker m_worker{"sounds"};
};

} // namespace Kestrune
