#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Kestrune {

/// What the command "usage" is asked for.
struct UsageRequest
{
    bool json = false;
    QString home;  ///< The folder that holds both assistants' own; the user's home unless one is given.
    QDateTime now; ///< The moment to report for.
    QString claudeConfig; ///< Further folders of Claude Code's, parted by commas; none beside a given home.
};

/// Reads both assistants' logs, whatever the settings say, and reports their figures as JSON or as text. May
/// take a while.
QByteArray usageReport(const UsageRequest &request);

} // namespace Kestrune
