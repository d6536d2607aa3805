#include "Catalogue.h"

#include "NotchStrings.h"

#include <array>

namespace Kestrune {

namespace {

constexpr std::array kTools{
    CatalogueEntry{"home", QT_TRANSLATE_NOOP("notch", "Home"), "square.grid.2x2.fill", "HomePane"},
    CatalogueEntry{"nowPlaying", QT_TRANSLATE_NOOP("notch", "Now Playing"), "music.note", "NowPlayingPane"},
    CatalogueEntry{"clipboard", QT_TRANSLATE_NOOP("notch", "Clipboard"), "doc.on.clipboard", "ClipboardPane"},
    CatalogueEntry{"captures", QT_TRANSLATE_NOOP("notch", "Screenshots"), "camera.viewfinder",
                   "CapturesPane"},
    CatalogueEntry{"calendar", QT_TRANSLATE_NOOP("notch", "Calendar"), "calendar", "CalendarPane"},
    CatalogueEntry{"shelf", QT_TRANSLATE_NOOP("notch", "Shelf"), "tray.and.arrow.down", "ShelfPane"},
    CatalogueEntry{"aiUsage", QT_TRANSLATE_NOOP("notch", "AI Usage"), "sparkles", "AIUsagePane"},
    CatalogueEntry{"weather", QT_TRANSLATE_NOOP("notch", "Weather"), "cloud.sun", "WeatherPane"},
    CatalogueEntry{"stocks", QT_TRANSLATE_NOOP("notch", "Stocks"), "chart.xyaxis.line", "StocksPane"},
    CatalogueEntry{"timer", QT_TRANSLATE_NOOP("notch", "Timer"), "timer", "TimerPane"},
    CatalogueEntry{"teleprompter", QT_TRANSLATE_NOOP("notch", "Teleprompter"), "text.alignleft",
                   "TeleprompterPane"},
    CatalogueEntry{"mirror", QT_TRANSLATE_NOOP("notch", "Mirror"), "camera", "MirrorPane"},
    CatalogueEntry{"note", QT_TRANSLATE_NOOP("notch", "Note"), "note.text", "NotePane"},
    CatalogueEntry{"system", QT_TRANSLATE_NOOP("notch", "System"), "gauge.with.dots.needle.33percent",
                   "SystemPane"},
};

constexpr std::array kWidgets{
    CatalogueEntry{"greeting", QT_TRANSLATE_NOOP("notch", "Greeting and date"), nullptr, "GreetingBlock"},
    CatalogueEntry{"weather", QT_TRANSLATE_NOOP("notch", "Weather"), nullptr, "WeatherBlock"},
    CatalogueEntry{"nowPlaying", QT_TRANSLATE_NOOP("notch", "Now Playing"), nullptr, "NowPlayingBlock"},
    CatalogueEntry{"events", QT_TRANSLATE_NOOP("notch", "Today's events"), nullptr, "EventsBlock"},
    CatalogueEntry{"reminders", QT_TRANSLATE_NOOP("notch", "Reminders"), nullptr, "RemindersBlock"},
    CatalogueEntry{"aiUsage", QT_TRANSLATE_NOOP("notch", "AI Usage"), nullptr, "AIUsageBlock"},
    CatalogueEntry{"timer", QT_TRANSLATE_NOOP("notch", "Timer"), nullptr, "TimerBlock"},
    CatalogueEntry{"stocks", QT_TRANSLATE_NOOP("notch", "Stocks"), nullptr, "StocksBlock"},
    CatalogueEntry{"system", QT_TRANSLATE_NOOP("notch", "System"), nullptr, "SystemBlock"},
    CatalogueEntry{"clipboard", QT_TRANSLATE_NOOP("notch", "Latest copies"), nullptr, "ClipboardBlock"},
    CatalogueEntry{"captures", QT_TRANSLATE_NOOP("notch", "Latest screenshots"), nullptr, "CapturesBlock"},
    CatalogueEntry{"note", QT_TRANSLATE_NOOP("notch", "Note"), nullptr, "NoteBlock"},
};

constexpr std::array kColumns{
    CatalogueEntry{"hidden", QT_TRANSLATE_NOOP("notch", "Hidden")},
    CatalogueEntry{"left", QT_TRANSLATE_NOOP("notch", "Left")},
    CatalogueEntry{"center", QT_TRANSLATE_NOOP("notch", "Centre")},
    CatalogueEntry{"right", QT_TRANSLATE_NOOP("notch", "Right")},
};

constexpr std::array kOpenModes{
    CatalogueEntry{"hover", QT_TRANSLATE_NOOP("notch", "On hover")},
    CatalogueEntry{"click", QT_TRANSLATE_NOOP("notch", "On click")},
};

static_assert(kTools.size() == static_cast<std::size_t>(NotchTool::system) + 1);
static_assert(kWidgets.size() == static_cast<std::size_t>(HomeWidget::note) + 1);
static_assert(kColumns.size() == static_cast<std::size_t>(HomeColumn::right) + 1);
static_assert(kOpenModes.size() == static_cast<std::size_t>(NotchOpenMode::click) + 1);

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

QString title(const CatalogueEntry &entry) { return notchStrings(entry.title); }

} // namespace Kestrune
