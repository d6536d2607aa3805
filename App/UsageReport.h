#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QStringList>

#include <optional>

namespace Kestrune {

/// What the command "usage" is asked for.
struct UsageRequest
{
    bool json = false;
    QString home;  ///< The folder that holds both assistants' own; the user's home unless one is given.
    QDateTime now; ///< The moment to report for.

    /// Reads the arguments after "usage"; nothing, and what is wrong in `fault`, when they are bad.
    static std::optional<UsageRequest> parse(const QStringList &arguments, QString &fault);
};

/// Reads both assistants' logs, whatever the settings say, and reports their figures as JSON or as text. May
/// take a while.
QByteArray usageReport(const UsageRequest &request);

} // namespace Kestrune
