#pragma once

#include "EndToEnd/Session.h"
#include "EndToEnd/Waiting.h"
#include "Support/TestRegistry.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPoint>

/// A real file manager, which shows one folder in a window that fills the display of 1280 x 800.
struct FileManager : ChildProcess
{
    /// Where the window's only file is, wherever the desktop puts the window's title, and where it is empty.
    static QList<QPoint> onlyFile(const QString &name)
    {
        return name == "pcmanfm"_L1 ? QList{QPoint(50, 100), QPoint(50, 136)}
                                    : QList{QPoint(44, 156), QPoint(44, 182)};
    }
    static constexpr QPoint empty{900, 600};

    /// Where the menu begins with copying that some show for a drop at `empty`; the window is empty there,
    /// too.
    static constexpr QPoint copyHere = empty + QPoint(40, 12);

    /// `platform` is "x11" or "wayland".
    FileManager(Session &session, const QString &name, const QString &folder, const QString &platform)
        : ChildProcess(session.environment())
    {
        QProcessEnvironment own = session.environment();
        own.insert(u"GDK_BACKEND"_s, platform);
        own.insert(u"QT_QPA_PLATFORM"_s, platform == "x11"_L1 ? u"xcb"_s : platform);
        setProcessEnvironment(own);
        const QString home = own.value(u"HOME"_s);
        const QString settings =
            own.value(u"XDG_CONFIG_HOME"_s, home + u"/.config"_s) + u'/' + name + u"/default/"_s;
        const bool written =
            QDir().mkpath(settings) &&
            writeFile(settings + u"pcmanfm.conf"_s, "[ui]\nmaximized=1\nside_pane_mode=hidden;places\n") &&
            writeFile(settings + u"settings.conf"_s,
                      "[Window]\nLastWindowMaximized=true\nSidePaneVisible=false\n");
        if (!written || !launch(name, {folder}))
            qFatal("the file manager did not start");
    }
};

/// A file in one folder of the user's, to be dragged onto the shelf and from there into another folder.
struct DraggedFile
{
    explicit DraggedFile(Session &itsSession)
        : session(itsSession)
    {
        QDir().mkpath(to);
        QDir().mkpath(from);
        writeFile(original, "content");
    }

    QStringList shelved() const
    {
        const auto stored = QJsonDocument::fromJson(session.setting(u"shelfPaths"_s).toUtf8());
        return QVariant(stored.array().toVariantList()).toStringList();
    }

    Session &session;
    QString home = session.environment().value(u"HOME"_s);
    QString from = home + u"/from"_s;
    QString to = home + u"/to"_s;
    QString original = from + u"/a 100% #ü日本.txt"_s;
    QString copy = to + u"/a 100% #ü日本.txt"_s;
};
