#include "Catalogue.h"

#include "NotchKit/Platform/Platform.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "NotchKit/Tools/AIUsage/AIUsageModel.h"
#include "NotchKit/Tools/Calendar/CalendarModel.h"
#include "NotchKit/Tools/Captures/CapturesModel.h"
#include "NotchKit/Tools/Clipboard/ClipboardModel.h"
#include "NotchKit/Tools/Mirror/MirrorModel.h"
#include "NotchKit/Tools/NowPlaying/NowPlayingModel.h"
#include "NotchKit/Tools/Shelf/ShelfModel.h"
#include "NotchKit/Tools/Stocks/StocksModel.h"
#include "NotchKit/Tools/System/SystemModel.h"
#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"
#include "NotchKit/Tools/Timer/TimerModel.h"
#include "NotchKit/Tools/Weather/WeatherModel.h"
#include "NotchStrings.h"

#include <algorithm>
#include <array>

namespace Kestrune {

namespace {

/// `Model`, made of what `parts` takes from the context.
template <typename Model, typename... Parts>
std::unique_ptr<ToolModel> made(Parts &&...parts)
{
    return std::make_unique<Model>(std::forward<Parts>(parts)...);
}

using Context = const ToolContext &;

constexpr std::array kTools{
    CatalogueEntry{.rawValue = "home",
                   //: The page that the notch opens with, like that of a telephone.
                   .title = QT_TRANSLATE_NOOP("notch", "Home"),
                   .symbol = "square.grid.2x2.fill",
                   .view = "HomePane"},
    CatalogueEntry{.rawValue = "nowPlaying",
                   .title = QT_TRANSLATE_NOOP("notch", "Now Playing"),
                   .symbol = "music.note",
                   .view = "NowPlayingPane",
                   .makeModel =
                       [](Context c) {
                           return made<NowPlayingModel>(c.settings, c.platform.clock, c.platform.players,
                                                        c.platform.scripts, c.platform.http,
                                                        c.platform.pictures);
                       },
                   .wings = "NowPlayingActivity",
                   .wingsRank = 3},
    CatalogueEntry{.rawValue = "clipboard",
                   .title = QT_TRANSLATE_NOOP("notch", "Clipboard"),
                   .symbol = "doc.on.clipboard",
                   .view = "ClipboardPane",
                   .makeModel =
                       [](Context c) {
                           return made<ClipboardModel>(c.settings, c.platform.defaults, c.platform.clock,
                                                       c.platform.windows.pasteboard(), c.platform.pictures);
                       }},
    CatalogueEntry{.rawValue = "captures",
                   .title = QT_TRANSLATE_NOOP("notch", "Screenshots"),
                   .symbol = "camera.viewfinder",
                   .view = "CapturesPane",
                   .makeModel =
                       [](Context c) {
                           return made<CapturesModel>(c.settings, c.platform.clock, c.platform.captures,
                                                      c.platform.thumbnails, c.platform.windows.pasteboard(),
                                                      c.platform.workspace, c.platform.pictures);
                       },
                   .wings = "CapturesActivity",
                   .wingsRank = 1},
    CatalogueEntry{.rawValue = "calendar",
                   .title = QT_TRANSLATE_NOOP("notch", "Calendar"),
                   .symbol = "calendar",
                   .view = "CalendarPane",
                   .makeModel =
                       [](Context c) {
                           return made<CalendarModel>(c.settings, c.platform.clock, c.platform.calendars);
                       }},
    CatalogueEntry{.rawValue = "shelf",
                   //: A place where files are put down for a while.
                   .title = QT_TRANSLATE_NOOP("notch", "Shelf"),
                   .symbol = "tray.and.arrow.down",
                   .view = "ShelfPane",
                   .makeModel =
                       [](Context c) {
                           return made<ShelfModel>(c.settings, c.platform.workspace, c.airDrop,
                                                   c.platform.windows.drags());
                       }},
    CatalogueEntry{.rawValue = "aiUsage",
                   .title = QT_TRANSLATE_NOOP("notch", "AI Usage"),
                   .symbol = "sparkles",
                   .view = "AIUsagePane",
                   .makeModel =
                       [](Context c) {
                           auto homes = AIUsageHomes::below(c.platform.home, c.platform.claudeConfig);
                           if (!c.platform.cache.isEmpty())
                               homes.memory = c.platform.cache + QLatin1String("/usage");
                           return made<AIUsageModel>(c.settings, c.platform.clock, homes);
                       }},
    CatalogueEntry{.rawValue = "weather",
                   .title = QT_TRANSLATE_NOOP("notch", "Weather"),
                   .symbol = "cloud.sun",
                   .view = "WeatherPane",
                   .makeModel =
                       [](Context c) {
                           return made<WeatherModel>(c.settings, c.platform.clock, c.platform.http,
                                                     c.platform.location);
                       }},
    CatalogueEntry{
        .rawValue = "stocks",
        //: The prices of shares.
        .title = QT_TRANSLATE_NOOP("notch", "Stocks"),
        .symbol = "chart.xyaxis.line",
        .view = "StocksPane",
        .makeModel =
            [](Context c) { return made<StocksModel>(c.settings, c.platform.clock, c.platform.http); }},
    CatalogueEntry{
        .rawValue = "timer",
        .title = QT_TRANSLATE_NOOP("notch", "Timer"),
        .symbol = "timer",
        .view = "TimerPane",
        .makeModel =
            [](Context c) { return made<TimerModel>(c.settings, c.platform.clock, c.platform.sounds); },
        .wings = "TimerActivity",
        .wingsRank = 2},
    CatalogueEntry{.rawValue = "teleprompter",
                   .title = QT_TRANSLATE_NOOP("notch", "Teleprompter"),
                   .symbol = "text.alignleft",
                   .view = "TeleprompterPane",
                   .makeModel = [](Context c) { return made<TeleprompterModel>(c.settings); }},
    CatalogueEntry{
        .rawValue = "mirror",
        .title = QT_TRANSLATE_NOOP("notch", "Mirror"),
        .symbol = "camera",
        .view = "MirrorPane",
        .makeModel =
            [](Context c) { return made<MirrorModel>(c.settings, c.platform.clock, c.platform.camera); }},
    CatalogueEntry{.rawValue = "note",
                   //: A note to oneself, such as one jots down.
                   .title = QT_TRANSLATE_NOOP("notch", "Note"),
                   .symbol = "note.text",
                   .view = "NotePane"},
    CatalogueEntry{.rawValue = "system",
                   //: Processor, memory, disk and battery of this computer.
                   .title = QT_TRANSLATE_NOOP("notch", "System"),
                   .symbol = "gauge.with.dots.needle.33percent",
                   .view = "SystemPane",
                   .makeModel = [](Context c) { return made<SystemModel>(c.settings, c.platform.host); }},
};

constexpr std::array kWidgets{
    CatalogueEntry{.rawValue = "greeting",
                   .title = QT_TRANSLATE_NOOP("notch", "Greeting and date"),
                   .view = "GreetingBlock"},
    CatalogueEntry{.rawValue = "weather",
                   .title = QT_TRANSLATE_NOOP("notch", "Weather"),
                   .view = "WeatherBlock",
                   .tool = NotchTool::weather},
    CatalogueEntry{.rawValue = "nowPlaying",
                   .title = QT_TRANSLATE_NOOP("notch", "Now Playing"),
                   .view = "NowPlayingBlock",
                   .tool = NotchTool::nowPlaying},
    CatalogueEntry{.rawValue = "events",
                   .title = QT_TRANSLATE_NOOP("notch", "Today's events"),
                   .view = "EventsBlock",
                   .tool = NotchTool::calendar},
    CatalogueEntry{.rawValue = "reminders",
                   .title = QT_TRANSLATE_NOOP("notch", "Reminders"),
                   .view = "RemindersBlock",
                   .tool = NotchTool::calendar},
    CatalogueEntry{.rawValue = "aiUsage",
                   .title = QT_TRANSLATE_NOOP("notch", "AI Usage"),
                   .view = "AIUsageBlock",
                   .tool = NotchTool::aiUsage},
    CatalogueEntry{.rawValue = "timer",
                   .title = QT_TRANSLATE_NOOP("notch", "Timer"),
                   .view = "TimerBlock",
                   .tool = NotchTool::timer},
    CatalogueEntry{.rawValue = "stocks",
                   .title = QT_TRANSLATE_NOOP("notch", "Stocks"),
                   .view = "StocksBlock",
                   .tool = NotchTool::stocks},
    CatalogueEntry{.rawValue = "system",
                   .title = QT_TRANSLATE_NOOP("notch", "System"),
                   .view = "SystemBlock",
                   .tool = NotchTool::system},
    CatalogueEntry{.rawValue = "clipboard",
                   .title = QT_TRANSLATE_NOOP("notch", "Latest copies"),
                   .view = "ClipboardBlock",
                   .tool = NotchTool::clipboard},
    CatalogueEntry{.rawValue = "captures",
                   .title = QT_TRANSLATE_NOOP("notch", "Latest screenshots"),
                   .view = "CapturesBlock",
                   .tool = NotchTool::captures},
    CatalogueEntry{.rawValue = "note",
                   .title = QT_TRANSLATE_NOOP("notch", "Note"),
                   .view = "NoteBlock",
                   .tool = NotchTool::note},
};

constexpr std::array kColumns{
    //: Where a block of Home stands: nowhere. The others are its three columns.
    CatalogueEntry{"hidden", QT_TRANSLATE_NOOP("notch", "Hidden")},
    CatalogueEntry{"left", QT_TRANSLATE_NOOP("notch", "Left")},
    CatalogueEntry{"center", QT_TRANSLATE_NOOP("notch", "Centre")},
    CatalogueEntry{"right", QT_TRANSLATE_NOOP("notch", "Right")},
};

constexpr std::array kOpenModes{
    //: Completes “Open the notch”: when the pointer rests on it.
    CatalogueEntry{"hover", QT_TRANSLATE_NOOP("notch", "On hover")},
    CatalogueEntry{"click", QT_TRANSLATE_NOOP("notch", "On click")},
};

constexpr std::array kPlacements{
    //: Completes “Panels at the top edge”: below them, but around a camera.
    CatalogueEntry{"automatic", QT_TRANSLATE_NOOP("notch", "Automatic")},
    //: Completes “Panels at the top edge”: the notch lies over them.
    CatalogueEntry{"over", QT_TRANSLATE_NOOP("notch", "Notch over them")},
    //: Completes “Panels at the top edge”: the notch hangs below them.
    CatalogueEntry{"below", QT_TRANSLATE_NOOP("notch", "Notch below them")},
};

static_assert(kTools.size() == static_cast<std::size_t>(NotchTool::system) + 1);
static_assert(kWidgets.size() == static_cast<std::size_t>(HomeWidget::note) + 1);
static_assert(kColumns.size() == static_cast<std::size_t>(HomeColumn::right) + 1);
static_assert(kOpenModes.size() == static_cast<std::size_t>(NotchOpenMode::click) + 1);
static_assert(kPlacements.size() == static_cast<std::size_t>(NotchPlacement::below) + 1);

} // namespace

template <>
std::span<const CatalogueEntry> catalogue<NotchTool>()
{
    return kTools;
}

template <>
std::span<const CatalogueEntry> catalogue<HomeWidget>()
{
    return kWidgets;
}

template <>
std::span<const CatalogueEntry> catalogue<HomeColumn>()
{
    return kColumns;
}

template <>
std::span<const CatalogueEntry> catalogue<NotchOpenMode>()
{
    return kOpenModes;
}

template <>
std::span<const CatalogueEntry> catalogue<NotchPlacement>()
{
    return kPlacements;
}

QList<NotchTool> toolsWithWings()
{
    QList<NotchTool> tools = allCases<NotchTool>();
    tools.removeIf([](NotchTool tool) { return !entry(tool).wings; });
    std::ranges::sort(tools, {}, [](NotchTool tool) { return entry(tool).wingsRank; });
    return tools;
}

QString title(const CatalogueEntry &entry) { return notchStrings(entry.title); }

} // namespace Kestrune
