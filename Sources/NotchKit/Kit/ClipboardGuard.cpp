#include "ClipboardGuard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace Kestrune {

void ClipboardGuard::detach(QObject *field) { QGuiApplication::clipboard()->disconnect(field); }

} // namespace Kestrune
