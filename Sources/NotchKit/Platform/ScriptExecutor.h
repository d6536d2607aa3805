#pragma once

#include <QByteArray>
#include <QFuture>
#include <QString>

#include <variant>

namespace Kestrune {

/// The script was not understood, or what it was about went wrong.
struct ScriptFailed
{
    bool operator==(const ScriptFailed &) const = default;
};

/// The system does not let this program control the one that the script is about.
struct ScriptNotPermitted
{
    bool operator==(const ScriptNotPermitted &) const = default;
};

/// How a script ended: with a text, which may be empty, or with data.
using ScriptOutcome = std::variant<ScriptFailed, ScriptNotPermitted, QString, QByteArray>;

/// Runs short scripts that ask or command a media player. Main thread only; nothing here blocks.
class ScriptExecutor
{
public:
    virtual ~ScriptExecutor() = default;

    /// Runs the script after those before it, each of which takes a second at the most, whatever the player
    /// does.
    virtual QFuture<ScriptOutcome> execute(const QString &source) = 0;
};

} // namespace Kestrune
