#include "InstalledHelper.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace Kestrune {

QString installedHelper(const QString &name)
{
    const QString folder = QCoreApplication::applicationDirPath();
    return QStandardPaths::findExecutable(
        name, {folder, folder + QStringLiteral("/../" KESTRUNE_LIBEXEC "/kestrune")});
}

} // namespace Kestrune
