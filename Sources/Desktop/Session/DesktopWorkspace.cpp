#include "DesktopWorkspace.h"

#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <array>

namespace Kestrune {

namespace {

struct SettingsProgram
{
    const char *program;
    const char *page; ///< The argument that opens the privacy page; empty where there is none.
};

/// The settings programs of the free desktops; the first one installed is taken.
constexpr std::array kSettingsPrograms{
    SettingsProgram{"gnome-control-center", "privacy"},
    SettingsProgram{"systemsettings", ""},
    SettingsProgram{"systemsettings5", ""},
    SettingsProgram{"cinnamon-settings", ""},
    SettingsProgram{"mate-control-center", ""},
    SettingsProgram{"xfce4-settings-manager", ""},
};

void openSettings()
{
    for (const auto &[program, page] : kSettingsPrograms) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(program));
        if (path.isEmpty())
            continue;
        QProcess::startDetached(path, *page ? QStringList{QString::fromLatin1(page)} : QStringList());
        return;
    }
}

} // namespace

void DesktopWorkspace::open(const QUrl &url)
{
    if (url.scheme() == QLatin1String("x-apple.systempreferences")) {
        openSettings();
        return;
    }
    QProcess::startDetached(QStringLiteral("xdg-open"), {url.toString(QUrl::FullyEncoded)});
}

} // namespace Kestrune
