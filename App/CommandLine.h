#pragma once

#include <QStringList>

#include <optional>

namespace Kestrune {

/// What a start of the program is asked to do.
struct CommandLine
{
    enum class Verb { start, help, version, toggle, open, close, quit, status, settings, usage, bad };

    Verb verb = Verb::start;
    QStringList arguments; ///< What follows the verb.
    QString fault;         ///< What is wrong, for `bad`.

    /// Reads the arguments after the program's name.
    static CommandLine parse(const QStringList &arguments);

    static QString helpText();
};

/// Runs a command against the running program, or, for settings, against the store when none runs; usage
/// needs neither.
/// Returns the exit status: 0, 1 when no program runs or it does not answer, 2 for bad arguments.
int runCommand(const CommandLine &command);

} // namespace Kestrune
