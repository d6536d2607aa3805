#pragma once

#include "Desktop/PasteboardStage.h"
#include "Desktop/X11/X11Pasteboard.h"
#include "EndToEnd/VirtualDisplay.h"

/// The adapter on a virtual display. The programs on it are known as "xclip", "qt" and "gtk"; the first
/// unless another is named.
struct ClipboardStage : PasteboardStage<X11Pasteboard>
{
    ClipboardStage()
    {
        environment.remove(u"WAYLAND_DISPLAY"_s);
        environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
        for (const auto &name : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s})
            environment.insert(name, m_home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        display =
            std::make_unique<VirtualDisplay>(VirtualDisplay::Server::Plain, QSize(800, 600), environment);
        environment.insert(u"DISPLAY"_s, display->name());
        if (display->name().isEmpty())
            qFatal("no display to test on");
    }

    void reset() { PasteboardStage::reset(display->name().toLatin1()); }

    bool startRogue(const QStringList &arguments)
    {
        return copied([&] { return start(beside(u"RogueOwner"_s), arguments); });
    }
    bool copy(const QString &type, const QByteArray &bytes, const QString &client = {})
    {
        const QStringList line = command(client, u"copy"_s, type) + QStringList{file(u"copied"_s, bytes)};
        return copied([&] { return start(line.first(), line.mid(1)); });
    }

    /// What a program gets when it pastes.
    QByteArray paste(const QString &type, const QString &client = {}) const
    {
        const QStringList line = command(client, u"paste"_s, type);
        return output(line.first(), line.mid(1));
    }

    /// Types keys into the window of that title.
    bool type(const QString &window, const QStringList &keys) const
    {
        ChildProcess process(environment);
        return process.launch(u"xdotool"_s,
                              QStringList{u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--name"_s, window,
                                          u"windowfocus"_s, u"--sync"_s, u"key"_s, u"--delay"_s, u"100"_s} +
                                  keys) &&
               process.waitForFinished(120000);
    }

    QString file(const QString &name, const QByteArray &bytes) const
    {
        return writeFile(path(name), bytes) ? path(name) : QString();
    }
    QString path(const QString &name) const { return m_home.filePath(name); }

    std::unique_ptr<VirtualDisplay> display;

private:
    /// The program and its arguments, but for the file to copy.
    static QStringList command(const QString &client, const QString &action, const QString &type)
    {
        if (client == "qt"_L1)
            return {beside(u"QtClient"_s), action, type};
        if (client == "gtk"_L1) // The system's own interpreter, which has the bindings.
            return {u"/usr/bin/python3"_s, QStringLiteral(KESTRUNE_GTK_CLIENT), action, type};
        return {u"xclip"_s,
                u"-quiet"_s,
                u"-selection"_s,
                u"clipboard"_s,
                u"-t"_s,
                type == "text/plain"_L1 ? u"UTF8_STRING"_s : type,
                action == "copy"_L1 ? u"-i"_s : u"-o"_s};
    }

    QTemporaryDir m_home;
};
