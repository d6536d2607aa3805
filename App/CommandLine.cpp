#include "CommandLine.h"

#include "NotchKit/Catalogue.h"
#include "PrompterRemote.h"

#include <QCommandLineParser>
#include <QDir>
#include <QMap>

namespace Kestrune {

namespace {

using Verb = CommandLine::Verb;

CommandLine bad(const QString &fault) { return {.verb = Verb::bad, .fault = fault}; }

CommandLine unknownArgument(const QString &argument)
{
    return bad(QStringLiteral("unknown argument %1").arg(argument));
}

QCommandLineOption option(const char *name, const char *value = "")
{
    return {QString::fromLatin1(name), {}, QString::fromLatin1(value)};
}

QCommandLineOption helpOption()
{
    return QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
}

/// Parses a command's own options. Whether they are understood, and nothing else is among the words.
bool parseOptions(QCommandLineParser &parser, const QStringList &words)
{
    return parser.parse(words) && parser.positionalArguments().isEmpty();
}

CommandLine parsePlain(Verb verb, const QString &name, qsizetype furtherWords)
{
    return furtherWords == 0 ? CommandLine{.verb = verb}
                             : bad(QStringLiteral("%1 takes no argument").arg(name));
}

CommandLine parseOpen(const QStringList &words)
{
    if (words.size() > 2)
        return bad(QStringLiteral("open takes at most one tool"));
    if (words.size() == 2 && !fromRawValue<NotchTool>(words.at(1))) {
        return bad(QStringLiteral("no tool is named %1; the tools are %2")
                       .arg(words.at(1), rawValues(allCases<NotchTool>()).join(QLatin1Char(' '))));
    }
    return {.verb = Verb::open, .arguments = words.mid(1)};
}

CommandLine parseStatus(const QStringList &words)
{
    QCommandLineParser parser;
    parser.addOption(option("json"));
    if (!parseOptions(parser, words))
        return bad(QStringLiteral("status takes only --json"));
    return {.verb = Verb::status, .json = parser.isSet(QStringLiteral("json"))};
}

CommandLine parseSettings(const QStringList &words)
{
    static const QMap<QString, qsizetype> counts{{QStringLiteral("list"), 2},
                                                 {QStringLiteral("open"), 2},
                                                 {QStringLiteral("get"), 3},
                                                 {QStringLiteral("set"), 4},
                                                 {QStringLiteral("reset"), 3}};
    if (counts.value(words.value(1), -1) != words.size())
        return bad(QStringLiteral("settings takes open, list, get KEY, set KEY VALUE or reset KEY"));
    return {.verb = Verb::settings, .arguments = words.mid(1)};
}

CommandLine parsePrompter(const QStringList &words)
{
    const auto fault = PrompterRemote::faultOf(words.value(1), words.value(2));
    if (words.size() > 3)
        return bad(QStringLiteral("prompter takes at most two arguments"));
    return fault ? bad(*fault) : CommandLine{.verb = Verb::prompter, .arguments = words.mid(1)};
}

CommandLine parseUsage(const QStringList &words)
{
    const QString home = QStringLiteral("home");
    const QString now = QStringLiteral("now");
    QCommandLineParser parser;
    parser.addOptions({option("json"), option("home", "DIR"), option("now", "TIME")});
    if (!parseOptions(parser, words))
        return bad(QStringLiteral("usage takes --json, --home DIR and --now TIME"));
    UsageRequest request{parser.isSet(QStringLiteral("json")), QDir::homePath(),
                         QDateTime::currentDateTimeUtc(), qEnvironmentVariable("CLAUDE_CONFIG_DIR")};
    if (parser.isSet(home)) {
        request.home = parser.value(home);
        request.claudeConfig.clear();
    }
    if (parser.isSet(now))
        request.now = QDateTime::fromString(parser.value(now), Qt::ISODateWithMs);
    if (!request.now.isValid())
        return bad(QStringLiteral("%1 is no ISO 8601 date and time").arg(parser.value(now)));
    return {.verb = Verb::usage, .usage = request};
}

CommandLine parseCommand(const QStringList &words)
{
    static const QMap<QString, Verb> plain{{QStringLiteral("toggle"), Verb::toggle},
                                           {QStringLiteral("close"), Verb::close},
                                           {QStringLiteral("quit"), Verb::quit}};
    const QString &name = words.constFirst();
    if (const auto verb = plain.constFind(name); verb != plain.cend())
        return parsePlain(*verb, name, words.size() - 1);
    if (name == QLatin1String("open"))
        return parseOpen(words);
    if (name == QLatin1String("status"))
        return parseStatus(words);
    if (name == QLatin1String("settings"))
        return parseSettings(words);
    if (name == QLatin1String("prompter"))
        return parsePrompter(words);
    if (name == QLatin1String("usage"))
        return parseUsage(words);
    return unknownArgument(name);
}

/// Says which option is not known, or has a value though it takes none.
CommandLine badOption(const QCommandLineParser &parser)
{
    const QString name = parser.unknownOptionNames().value(0);
    if (name.isEmpty())
        return bad(parser.errorText().chopped(1)); // Without its full stop.
    return unknownArgument(QLatin1String(name.size() == 1 ? "-" : "--") + name);
}

/// `words` are what follows the options.
CommandLine parseStart(const QStringList &words)
{
    // "--open" takes any word after it: an unknown tool opens the default pane.
    if (words.size() > 1)
        return unknownArgument(words.at(1));
    return {.launch = {true, fromRawValue<NotchTool>(words.value(0))}};
}

/// As session managers write it behind what a start was; Qt reads the name of the session.
bool isRestoring(const QStringList &arguments)
{
    const qsizetype at = arguments.size() - 2;
    return at >= 0 && arguments.at(at) == QLatin1String("-session") &&
           (at == 0 || arguments.constFirst() == QLatin1String("--open"));
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    if (isRestoring(arguments))
        return {.launch = {false, {}, true}};
    if (arguments.isEmpty())
        return {};
    QCommandLineParser parser;
    // A command's own arguments, values that begin with a minus among them, are left to it.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({option("open"), helpOption(), option("version")});
    if (!parser.parse(QStringList{QString()} + arguments))
        return badOption(parser);
    const QStringList words = parser.positionalArguments();
    const QStringList options = parser.optionNames();
    for (const auto &[name, verb] : {std::pair("help", Verb::help), std::pair("version", Verb::version)}) {
        if (parser.isSet(QString::fromLatin1(name)))
            return parsePlain(verb, QStringLiteral("--%1").arg(QLatin1String(name)),
                              options.size() - 1 + words.size());
    }
    if (!options.isEmpty())
        return parseStart(words);
    return words.isEmpty() ? CommandLine{} : parseCommand(words);
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
  kestrune prompter play|pause|toggle
                                  the teleprompter, while another window has the keyboard
  kestrune prompter speed N       points a second; +N or -N changes it by that
  kestrune prompter position N    percent of the script; likewise
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
