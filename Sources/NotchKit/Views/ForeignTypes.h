#pragma once

#include "NotchKit/AirDrop.h"
#include "NotchKit/NotchScreenModel.h"
#include "NotchKit/NotchServices.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/Platform/Appearance.h"
#include "NotchKit/Platform/Updater.h"
#include "NotchKit/Tools/AIUsageModel.h"
#include "NotchKit/Tools/CalendarModel.h"
#include "NotchKit/Tools/CapturesModel.h"
#include "NotchKit/Tools/ClipboardModel.h"
#include "NotchKit/Tools/MirrorModel.h"
#include "NotchKit/Tools/NowPlayingModel.h"
#include "NotchKit/Tools/ShelfModel.h"
#include "NotchKit/Tools/StocksModel.h"
#include "NotchKit/Tools/SystemModel.h"
#include "NotchKit/Tools/TeleprompterModel.h"
#include "NotchKit/Tools/TimerModel.h"
#include "NotchKit/Tools/WeatherModel.h"

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

KESTRUNE_VIEW_TYPE(AirDrop);
KESTRUNE_VIEW_TYPE(Appearance);
KESTRUNE_VIEW_TYPE(CalendarModel);
KESTRUNE_VIEW_TYPE(CapturesModel);
KESTRUNE_VIEW_TYPE(ClipboardModel);
KESTRUNE_VIEW_TYPE(AIUsageModel);
KESTRUNE_VIEW_TYPE(MirrorModel);
KESTRUNE_VIEW_TYPE(NotchScreenModel);
KESTRUNE_VIEW_TYPE(NotchServices);
KESTRUNE_VIEW_TYPE(NotchSettings);
KESTRUNE_VIEW_TYPE(NowPlayingModel);
KESTRUNE_VIEW_TYPE(ShelfModel);
KESTRUNE_VIEW_TYPE(StocksModel);
KESTRUNE_VIEW_TYPE(SystemModel);
KESTRUNE_VIEW_TYPE(TeleprompterModel);
KESTRUNE_VIEW_TYPE(TimerModel);
KESTRUNE_VIEW_TYPE(Updater);
KESTRUNE_VIEW_TYPE(WeatherModel);

#undef KESTRUNE_VIEW_TYPE

} // namespace Kestrune
