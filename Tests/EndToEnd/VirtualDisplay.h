#pragma once

#include "EndToEnd/ChildProcess.h"
#include "EndToEnd/Waiting.h"
#include "EndToEnd/X11.h"
#include "Support/TestRegistry.h"

/// An X server of the test's own on a free display number, and the desktop's programs on it.
struct VirtualDisplay
{
    enum class Server {
        Plain,   ///< One display of a fixed size.
        Outputs, ///< Several outputs that can be plugged and unplugged; needs the dummy video driver.
    };

    /// Starts the server; `environment` is what the programs on it get, besides DISPLAY.
    VirtualDisplay(Server server, QSize size, const QProcessEnvironment &environment)
        : m_environment(environment)
        , m_server(environment)
    {
        bool launched = false;
        if (server == Server::Plain) {
            const QString screen = u"%1x%2x24"_s.arg(size.width()).arg(size.height());
            launched = m_server.launch(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, screen,
                                                   u"-noreset"_s, u"-nolisten"_s, u"tcp"_s});
        } else {
            const QString configuration = m_folder.filePath(u"xorg.conf"_s);
            // The server itself, not its wrapper, which allows it only to users of a console.
            launched =
                writeFile(configuration, outputsConfiguration(size)) &&
                m_server.launch(u"/usr/lib/xorg/Xorg"_s,
                                {u"-displayfd"_s, u"1"_s, u"-config"_s, configuration, u"-logfile"_s,
                                 m_folder.filePath(u"log"_s), u"-noreset"_s, u"-nolisten"_s, u"tcp"_s});
        }
        if (!launched || !waitUntil([this] { return m_server.canReadLine(); }))
            return;
        m_name = u':' + QString::fromLatin1(m_server.readLine().trimmed());
        m_environment.insert(u"DISPLAY"_s, m_name);
        m_x = std::make_unique<X11>(m_name);
        if (server == Server::Outputs)
            randr({u"--addmode"_s, u"DUMMY1"_s, u"%1x%2"_s.arg(size.width()).arg(size.height())});
    }

    /// ":7"; empty when the server did not start.
    const QString &name() const { return m_name; }

    /// Each returns once the desktop's conventions say that the program is in charge.
    bool startWindowManager(const QString &program)
    {
        const QStringList xfwm4{u"xfwm4"_s, u"--compositor=off"_s};
        const QStringList kwin{u"env"_s, u"QT_QPA_PLATFORM=xcb"_s, u"kwin_x11"_s};
        const QStringList command = program == xfwm4.constFirst() ? xfwm4
                                    : program == kwin.constLast() ? kwin
                                                                  : QStringList(program);
        // openbox can leave an event lying in its queue until the next one comes, which on a display as quiet
        // as this may be never.
        QObject::connect(&m_wake, &QTimer::timeout, [this] { m_x->wakeWindowManager(); });
        m_wake.start(20);
        return launch(command.constFirst(), command.mid(1)) &&
               waitUntil([&] { return m_x->hasWindowManager(); });
    }
    bool startCompositor()
    {
        return launch(u"picom"_s, {u"--config"_s, u"/dev/null"_s, u"--backend"_s, u"xrender"_s}) &&
               waitUntil([&] { return m_x->hasCompositor(); });
    }

    /// Plugs in or unplugs the display right of the first one; `Server::Outputs` only.
    bool plugSecond(bool plugged)
    {
        const QString output = u"DUMMY1"_s;
        return plugged ? randr({u"--output"_s, output, u"--preferred"_s, u"--right-of"_s, u"DUMMY0"_s})
                       : randr({u"--output"_s, output, u"--off"_s});
    }
    /// Gives the first display another size; the second one moves along.
    bool resizeFirst(QSize size)
    {
        return randr({u"--output"_s, u"DUMMY0"_s, u"--mode"_s,
                      u"%1x%2"_s.arg(size.width()).arg(size.height()), u"--output"_s, u"DUMMY1"_s, u"--pos"_s,
                      u"%1x0"_s.arg(size.width())});
    }

    /// Ends the server as a crash would; nothing more can be asked of it.
    void killServer() { m_server.killNow(); }

private:
    static QByteArray outputsConfiguration(QSize size)
    {
        return R"(
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoEnableDevices" "false"
EndSection
Section "Device"
  Identifier "card"
  Driver "dummy"
  VideoRam 65536
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5.0-1000.0
  VertRefresh 5.0-200.0
EndSection
Section "Screen"
  Identifier "screen"
  Device "card"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "%1x%2"
  EndSubSection
EndSection
)"_ba.replace("%1", QByteArray::number(size.width()))
            .replace("%2", QByteArray::number(size.height()));
    }

    bool launch(const QString &program, const QStringList &arguments)
    {
        m_programs.push_back(std::make_unique<ChildProcess>(m_environment));
        m_programs.back()->setProcessChannelMode(QProcess::MergedChannels);
        return m_programs.back()->launch(program, arguments);
    }
    bool randr(const QStringList &arguments)
    {
        ChildProcess process(m_environment);
        return process.launch(u"xrandr"_s, arguments) && process.waitForFinished() && process.exitCode() == 0;
    }

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QString m_name;
    ChildProcess m_server;
    std::vector<std::unique_ptr<ChildProcess>> m_programs; // ends before the server does
    std::unique_ptr<X11> m_x;
    QTimer m_wake;
};
