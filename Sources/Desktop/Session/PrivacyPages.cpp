#include "PrivacyPages.h"

#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace Kestrune {

namespace {

/// One of the free desktops' settings.
struct Settings
{
    const char *desktop; ///< As XDG_CURRENT_DESKTOP names it.
    const char *program;
    bool alone = false; ///< They end at once on another desktop.
};

constexpr std::array kSettings{
    Settings{"GNOME", "gnome-control-center", true},
    Settings{"KDE", "systemsettings"},
    Settings{"KDE", "systemsettings5"},
    Settings{"X-Cinnamon", "cinnamon-settings"},
    Settings{"MATE", "mate-control-center"},
    Settings{"XFCE", "xfce4-settings-manager"},
};

/// A page, which is there where its entry among the applications is.
struct Page
{
    const char *anchors; ///< With blanks between them.
    const char *desktop;
    const char *entry;
    const char *arguments;
};

/// The first that is installed is taken. From release 46 on GNOME's privacy pages are within one panel.
constexpr std::array kPages{
    Page{"Privacy_Camera", "GNOME", "gnome-camera-panel", "camera"},
    Page{"Privacy_Camera", "GNOME", "gnome-privacy-panel", "privacy camera"},
    Page{"Privacy_Calendars Privacy_Reminders", "GNOME", "gnome-online-accounts-panel", "online-accounts"},
    Page{"Privacy_Automation Privacy_FilesAndFolders", "GNOME", "gnome-applications-panel", "applications"},
    Page{"Privacy_Calendars Privacy_Reminders", "KDE", "kcm_kaccounts", "kcm_kaccounts"},
    Page{"Privacy_Camera Privacy_Automation Privacy_FilesAndFolders", "KDE", "kcm_app-permissions",
         "kcm_app-permissions"},
    Page{"Privacy_Camera Privacy_Automation Privacy_FilesAndFolders", "KDE", "kcm_flatpak", "kcm_flatpak"},
    Page{"Privacy_Camera Privacy_Automation Privacy_FilesAndFolders", "X-Cinnamon",
         "cinnamon-settings-privacy", "privacy"},
};

QStringList words(const char *text) { return QString::fromLatin1(text).split(QLatin1Char(' ')); }

QString installed(const Settings &settings)
{
    return QStandardPaths::findExecutable(QString::fromLatin1(settings.program));
}

bool isThere(const Page &page)
{
    const QString entry = QString::fromLatin1(page.entry) + QStringLiteral(".desktop");
    return !QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry).isEmpty();
}

QStringList arguments(const QString &anchor, const QString &desktop)
{
    const auto *const page = std::ranges::find_if(kPages, [&](const Page &candidate) {
        return desktop == QLatin1String(candidate.desktop) && words(candidate.anchors).contains(anchor) &&
               isThere(candidate);
    });
    return page == kPages.end() ? QStringList() : words(page->arguments);
}

} // namespace

QStringList privacyPage(const QString &anchor)
{
    const QStringList running = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
    for (const bool own : {true, false}) {
        for (const Settings &settings : kSettings) {
            const QString desktop = QString::fromLatin1(settings.desktop);
            if (running.contains(desktop) != own || (!own && settings.alone))
                continue;
            if (const QString program = installed(settings); !program.isEmpty())
                return QStringList(program) + arguments(anchor, desktop);
        }
    }
    return {};
}

} // namespace Kestrune
