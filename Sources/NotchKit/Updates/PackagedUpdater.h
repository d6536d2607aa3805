#pragma once

#include "Updater.h"

namespace Kestrune {

/// The updater of a copy that a package manager installed or the user built: it leaves that copy alone, as
/// whoever put it there replaces it.
class PackagedUpdater : public Updater
{
    Q_OBJECT

public:
    using Updater::Updater;

    bool canCheckForUpdates() const override { return false; }
    void checkForUpdates() override {}
    bool automaticallyDownloadsUpdates() const override { return false; }
    void setAutomaticallyDownloadsUpdates(bool /*automatically*/) override {}
    bool isManaged() const override { return true; }
};

} // namespace Kestrune
