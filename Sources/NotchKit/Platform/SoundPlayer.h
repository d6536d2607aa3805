#pragma once

#include <QString>

namespace Kestrune {

/// Short alert sounds. Main thread only.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;

    /// Plays the sound of that name ("Glass") once, without blocking. An unknown name, or a machine with
    /// no sound, plays nothing.
    virtual void play(const QString &name) = 0;
};

} // namespace Kestrune
