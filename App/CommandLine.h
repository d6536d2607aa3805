#pragma once

#include "LaunchRequest.h"
#include "UsageReport.h"

#include <QStringList>

namespace Kestrune {

/// What a start of the program is asked to do.
struct CommandLine
{
    enum class Verb {
        start,
        help,
        version,
        toggle,
        open,
        close,
        quit,
        status,
        settings,
        usage,
        prompter,
        bad
    };

    Verb verb = Verb::start;
    LaunchRequest launch = {}; ///< For `start`.
    QStringList arguments =
        {};            ///< For `open` the tool, if one is named; for `settings` and `prompter` what follows.
    bool json = false; ///< For `status`.
    UsageRequest usage = {}; ///< For `usage`.
    QString fault = {};      ///< What is wrong, for `bad`.

    /// Reads the arguments after the program's name.
    static CommandLine parse(const QStringList &arguments);

    static QString helpText();
};

/// Runs a command against the running program, or, for settings, against the store when none runs; usage
/// needs neither.
/// Returns the exit status: 0, 1 when no program runs or it does not answer, 2 for bad arguments.
int runCommand(const CommandLine &command);

} // namespace Kestrune
