#include "UpdateWindow.h"

#include "NotchKit/Platform/Appearance.h"
#include "NotchKit/Updates/Updater.h"

#include <QQmlEngine>

namespace Kestrune {

UpdateWindow::UpdateWindow(QQmlEngine &engine, Updater &updater, Appearance &appearance)
    : FormWindow(engine, QStringLiteral("UpdateWindow"),
                 {{QStringLiteral("updater"), QVariant::fromValue(&updater)},
                  {QStringLiteral("appearance"), QVariant::fromValue(&appearance)}})
{
    QObject::connect(&updater, &Updater::attentionWanted, &engine, [this] { open(); });
}

} // namespace Kestrune
