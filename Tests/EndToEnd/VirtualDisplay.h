#pragma once

#include "EndToEnd/ChildProcess.h"

#include <QSize>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>
#include <vector>

class X11;

/// An X server of the test's own on a free display number, and the desktop's programs on it.
struct VirtualDisplay
{
    enum class Server {
        Plain,   ///< One display of a fixed size.
        Outputs, ///< Several outputs that can be plugged and unplugged; needs the dummy video driver.
    };

    /// Starts the server; `environment` is what the programs on it get, besides DISPLAY.
    VirtualDisplay(Server server, QSize size, const QProcessEnvironment &environment);

    ~VirtualDisplay();

    /// ":7"; empty when the server did not start.
    const QString &name() const { return m_name; }

    /// Each returns once the desktop's conventions say that the program is in charge.
    bool startWindowManager(const QString &program);
    bool startCompositor();

    /// Plugs in or unplugs the display right of the first one; `Server::Outputs` only.
    bool plugSecond(bool plugged);
    /// Gives the first display another size; the second one moves along.
    bool resizeFirst(QSize size);

    /// Ends the server as a crash would; nothing more can be asked of it.
    void killServer() { m_server.killNow(); }

private:
    bool launch(const QString &program, const QStringList &arguments);
    bool randr(const QStringList &arguments);

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QString m_name;
    ChildProcess m_server;
    std::vector<std::unique_ptr<ChildProcess>> m_programs; // ends before the server does
    std::unique_ptr<X11> m_x;
    QTimer m_wake;
};
