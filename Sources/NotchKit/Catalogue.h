#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <span>

/// The vocabulary of the notch: its tools, the blocks and columns of its Home pane, how it opens. The raw
/// strings are stored in the user's settings and never change; the order of the cases is the order in
/// which tools and widgets are listed.
namespace Kestrune {

Q_NAMESPACE

enum class NotchTool {
    home,
    nowPlaying,
    clipboard,
    captures,
    calendar,
    shelf,
    aiUsage,
    weather,
    stocks,
    timer,
    teleprompter,
    mirror,
    note,
    system,
};
Q_ENUM_NS(NotchTool)

enum class HomeWidget {
    greeting,
    weather,
    nowPlaying,
    events,
    reminders,
    aiUsage,
    timer,
    stocks,
    system,
    clipboard,
    captures,
    note,
};
Q_ENUM_NS(HomeWidget)

enum class HomeColumn { hidden, left, center, right };
Q_ENUM_NS(HomeColumn)

enum class NotchOpenMode { hover, click };
Q_ENUM_NS(NotchOpenMode)

/// Where the notch is on a display whose top edge another panel keeps for itself: by itself it is below, but
/// around a camera housing.
enum class NotchPlacement { automatic, over, below };
Q_ENUM_NS(NotchPlacement)

class AirDrop;
class NotchSettings;
class ToolModel;
struct Platform;

/// What a tool's model is made of. All outlive the models.
struct ToolContext
{
    NotchSettings &settings;
    const Platform &platform; ///< The ports outlive the models; the value itself does not.
    AirDrop &airDrop;
};

/// One case of a catalogue enumeration.
struct CatalogueEntry
{
    const char *rawValue;         ///< What is stored.
    const char *title;            ///< English title, the key of its translation.
    const char *symbol = nullptr; ///< Symbol name (tools only).
    const char *view = nullptr;   ///< Name of the pane or Home block that shows it (tools and widgets only).
    /// Makes the state holder of a tool that has one.
    std::unique_ptr<ToolModel> (*makeModel)(const ToolContext &context) = nullptr;
    const char *wings = nullptr; ///< Name of the view beside the closed notch, for tools that have one.
    int wingsRank = 0;           ///< Of two tools with something for the wings, the lower rank shows it.
    std::optional<NotchTool> tool = std::nullopt; ///< What a Home block belongs to.
};

template <typename Case>
concept CatalogueCase = std::same_as<Case, NotchTool> || std::same_as<Case, HomeWidget> ||
    std::same_as<Case, HomeColumn> || std::same_as<Case, NotchOpenMode> || std::same_as<Case, NotchPlacement>;

/// The entries of an enumeration, one per case, in declaration order.
template <CatalogueCase Case>
std::span<const CatalogueEntry> catalogue();

template <CatalogueCase Case>
const CatalogueEntry &entry(Case value)
{
    return catalogue<Case>()[static_cast<std::size_t>(value)];
}

/// All cases in declaration order.
template <CatalogueCase Case>
QList<Case> allCases()
{
    QList<Case> cases;
    for (std::size_t i = 0; i < catalogue<Case>().size(); ++i)
        cases.append(static_cast<Case>(i));
    return cases;
}

template <CatalogueCase Case>
QString rawValue(Case value)
{
    return QString::fromLatin1(entry(value).rawValue);
}

/// The case whose raw value is exactly `raw`; nothing for any other string.
template <CatalogueCase Case>
std::optional<Case> fromRawValue(const QString &raw)
{
    for (std::size_t i = 0; i < catalogue<Case>().size(); ++i) {
        if (raw == QLatin1String(catalogue<Case>()[i].rawValue))
            return static_cast<Case>(i);
    }
    return std::nullopt;
}

/// The raw values of `cases`, in their order.
template <CatalogueCase Case>
QStringList rawValues(const QList<Case> &cases)
{
    QStringList raws;
    for (const Case value : cases)
        raws.append(rawValue(value));
    return raws;
}

/// The cases that `raws` names, in their order; other strings are dropped.
template <CatalogueCase Case>
QList<Case> fromRawValues(const QStringList &raws)
{
    QList<Case> cases;
    for (const QString &raw : raws) {
        if (const auto value = fromRawValue<Case>(raw))
            cases.append(*value);
    }
    return cases;
}

/// The title in the user's language.
QString title(const CatalogueEntry &entry);

template <CatalogueCase Case>
QString title(Case value)
{
    return title(entry(value));
}

/// The tools that have something for the wings, by their rank.
QList<NotchTool> toolsWithWings();

/// The name of the tool's symbol.
inline QString symbol(NotchTool tool) { return QString::fromLatin1(entry(tool).symbol); }

} // namespace Kestrune
