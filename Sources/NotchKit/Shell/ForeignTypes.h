#pragma once

#include "NotchKit/AirDrop.h"
#include "NotchKit/NotchController.h"
#include "NotchKit/NotchScreenModel.h"
#include "NotchKit/NotchServices.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/Platform/Appearance.h"
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
#include "NotchKit/Updates/Updater.h"

#include <QtQml/qqml.h>

/// The core's types as the views know them; the core itself does not depend on the view engine.
namespace Kestrune {

#define KESTRUNE_VIEW_TYPE(Type)                                                                             \
    struct Type##ForViews                                                                                    \
    {                                                                                                        \
        Q_GADGET                                                                                             \
        QML_FOREIGN(Kestrune::Type)                                                                          \
        QML_NAMED_ELEMENT(Type)                                                                              \
        QML_UNCREATABLE("belongs to the core")                                                               \
    }

#define KESTRUNE_VIEW_VALUE(Type, name)                                                                      \
    struct Type##ForViews                                                                                    \
    {                                                                                                        \
        Q_GADGET                                                                                             \
        QML_FOREIGN(Kestrune::Type)                                                                          \
        QML_VALUE_TYPE(name)                                                                                 \
    }

KESTRUNE_VIEW_TYPE(AirDrop);
KESTRUNE_VIEW_TYPE(Appearance);
KESTRUNE_VIEW_TYPE(CalendarModel);
KESTRUNE_VIEW_TYPE(CapturesModel);
KESTRUNE_VIEW_TYPE(ClipboardModel);
KESTRUNE_VIEW_TYPE(AIUsageModel);
KESTRUNE_VIEW_TYPE(MirrorModel);
KESTRUNE_VIEW_TYPE(NotchController);
KESTRUNE_VIEW_TYPE(NotchScreenModel);
KESTRUNE_VIEW_TYPE(NotchServices);
KESTRUNE_VIEW_TYPE(NotchSettings);
KESTRUNE_VIEW_TYPE(NotchSurroundings);
KESTRUNE_VIEW_TYPE(NowPlayingModel);
KESTRUNE_VIEW_TYPE(ShelfModel);
KESTRUNE_VIEW_TYPE(StocksModel);
KESTRUNE_VIEW_TYPE(SystemModel);
KESTRUNE_VIEW_TYPE(TeleprompterModel);
KESTRUNE_VIEW_TYPE(TimerModel);
KESTRUNE_VIEW_TYPE(ToolModel);
KESTRUNE_VIEW_TYPE(Updater);
KESTRUNE_VIEW_TYPE(WeatherModel);

KESTRUNE_VIEW_VALUE(CalendarItem, calendarItem);
KESTRUNE_VIEW_VALUE(CalendarReminder, calendarReminder);
KESTRUNE_VIEW_VALUE(CaptureItem, captureItem);
KESTRUNE_VIEW_VALUE(ClipboardItem, clipboardItem);
KESTRUNE_VIEW_VALUE(ShelfTile, shelfTile);
KESTRUNE_VIEW_VALUE(StockQuote, stockQuote);

#undef KESTRUNE_VIEW_TYPE
#undef KESTRUNE_VIEW_VALUE

} // namespace Kestrune
