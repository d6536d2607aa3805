#pragma once

#include "FeedSource.h"
#include "NotchKit/Platform/Platform.h"
#include "NotchKit/Updates/Updater.h"

#include <memory>

namespace Kestrune {

/// The updater that fits this copy. One that was built with the address of a release feed and the keys
/// of its makers follows that feed; every other belongs to a package manager, or to whoever built it.
std::unique_ptr<Updater> makeUpdater(const FeedSource &feed, const Platform &platform);

} // namespace Kestrune
