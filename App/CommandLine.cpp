#include "CommandLine.h"

#include "NotchKit/Catalogue.h"
#include "UsageReport.h"

#include <QMap>

namespace Kestrune {

namespace {

using Verb = CommandLine::Verb;

CommandLine bad(const QString &fault) { return {Verb::bad, {}, fault}; }

CommandLine parseStart(const QStringList &arguments)
{
    // "--open" takes any word after it: an unknown tool opens the default pane.
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) == QLatin1String("--open")) {
            if (i + 1 < arguments.size() && !arguments.at(i + 1).startsWith(QLatin1Char('-')))
                ++i;
        } else {
            return bad(QStringLiteral("unknown argument %1").arg(arguments.at(i)));
        }
    }
    return {Verb::start, arguments, {}};
}

CommandLine parseOpen(const QStringList &arguments)
{
    if (arguments.size() > 1)
        return bad(QStringLiteral("open takes at most one tool"));
    if (!arguments.isEmpty() && !fromRawValue<NotchTool>(arguments.constFirst())) {
        return bad(QStringLiteral("no tool is named %1; the tools are %2")
                       .arg(arguments.constFirst(), rawValues(allCases<NotchTool>()).join(QLatin1Char(' '))));
    }
    return {Verb::open, arguments, {}};
}

CommandLine parseStatus(const QStringList &arguments)
{
    const bool valid = arguments.isEmpty() || arguments == QStringList{QStringLiteral("--json")};
    return valid ? CommandLine{Verb::status, arguments, {}} : bad(QStringLiteral("status takes only --json"));
}

CommandLine parseSettings(const QStringList &arguments)
{
    static const QMap<QString, qsizetype> counts{{QStringLiteral("list"), 1},
                                                 {QStringLiteral("open"), 1},
                                                 {QStringLiteral("get"), 2},
                                                 {QStringLiteral("set"), 3},
                                                 {QStringLiteral("reset"), 2}};
    if (arguments.isEmpty() || counts.value(arguments.constFirst(), -1) != arguments.size())
        return bad(QStringLiteral("settings takes open, list, get KEY, set KEY VALUE or reset KEY"));
    return {Verb::settings, arguments, {}};
}

CommandLine parseUsage(const QStringList &arguments)
{
    QString fault;
    const auto request = UsageRequest::parse(arguments, fault);
    return request ? CommandLine{Verb::usage, arguments, {}} : bad(fault);
}

CommandLine parsePlain(Verb verb, const QString &name, const QStringList &arguments)
{
    return arguments.isEmpty() ? CommandLine{verb, {}, {}}
                               : bad(QStringLiteral("%1 takes no argument").arg(name));
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    if (arguments.isEmpty())
        return {};
    const QString &first = arguments.constFirst();
    const QStringList rest = arguments.mid(1);
    static const QMap<QString, Verb> plain{
        {QStringLiteral("--help"), Verb::help},       {QStringLiteral("-h"), Verb::help},
        {QStringLiteral("--version"), Verb::version}, {QStringLiteral("toggle"), Verb::toggle},
        {QStringLiteral("close"), Verb::close},       {QStringLiteral("quit"), Verb::quit},
    };
    if (const auto verb = plain.constFind(first); verb != plain.cend())
        return parsePlain(*verb, first, rest);
    if (first == QLatin1String("open"))
        return parseOpen(rest);
    if (first == QLatin1String("status"))
        return parseStatus(rest);
    if (first == QLatin1String("settings"))
        return parseSettings(rest);
    if (first == QLatin1String("usage"))
        return parseUsage(rest);
    return parseStart(arguments);
}

QString CommandLine::helpText()
{
    return QStringLiteral(R"(Kestrune lives at the top centre of each display.

  kestrune                        start it
  kestrune --open [TOOL]          start it and open the notch a second later
  kestrune toggle                 open or close the notch under the pointer
  kestrune open [TOOL]            open the notch
  kestrune close                  close every notch
  kestrune quit                   end the program
  kestrune status [--json]        what it is doing
  kestrune usage [--json] [--home DIR] [--now TIME]
                                  what Codex and Claude Code logged of their use
  kestrune settings open          show the settings window
  kestrune settings list          every setting
  kestrune settings get KEY
  kestrune settings set KEY VALUE
  kestrune settings reset KEY
  kestrune --version
  kestrune --help

Tools: %1
)")
        .arg(rawValues(allCases<NotchTool>()).join(QLatin1Char(' ')));
}

} // namespace Kestrune
