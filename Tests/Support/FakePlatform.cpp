#include "FakePlatform.h"

namespace Kestrune::Fakes {

Platform::Platform(MemoryDefaults::Values stored, const QString &folder)
    : defaults(std::move(stored))
    , home(folder)
{}

Platform::~Platform() = default;

Kestrune::Platform Platform::ports(const RealPorts &real)
{
    const auto choose = [](auto *chosen, auto &fake) -> decltype(*chosen) { return chosen ? *chosen : fake; };
    windows.now = {&choose(real.displays, displays), &choose(real.pointer, pointer), &hotKeys, &drags,
                   &choose(real.pasteboard, pasteboard)};
    return {.windows = windows,
            .clock = choose(real.clock, clock),
            .defaults = defaults,
            .suiteDefaults = suiteDefaults,
            .applications = applications,
            .players = choose(real.players, players),
            .loginItem = loginItem,
            .sounds = sounds,
            .workspace = workspace,
            .sharing = sharing,
            .captures = captures,
            .thumbnails = thumbnails,
            .http = choose(real.http, http),
            .location = location,
            .scripts = choose(real.scripts, scripts),
            .host = host,
            .camera = camera,
            .calendars = choose(real.calendars, calendars),
            .home = home};
}

} // namespace Kestrune::Fakes
