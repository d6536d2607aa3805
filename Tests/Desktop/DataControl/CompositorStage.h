#pragma once

#include "Desktop/DataControl/DataControlPasteboard.h"
#include "Desktop/PasteboardStage.h"

#include <unistd.h>

/// A compositor without a screen, and programs in its session.
struct Compositor
{
    /// Starts sway, or that program of the tests.
    explicit Compositor(const QString &program = u"sway"_s, const QStringList &arguments = {})
    {
        for (const auto &name :
             {u"WAYLAND_DISPLAY"_s, u"DISPLAY"_s, u"SWAYSOCK"_s, u"DBUS_SESSION_BUS_ADDRESS"_s})
            environment.remove(name);
        for (const auto &name : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_RUNTIME_DIR"_s})
            environment.insert(name, m_folder.path());
        environment.insert(u"WLR_BACKENDS"_s, u"headless"_s);
        environment.insert(u"WLR_LIBINPUT_NO_DEVICES"_s, u"1"_s);
        environment.insert(u"WLR_RENDERER"_s, u"pixman"_s);
        process = std::make_unique<ChildProcess>(environment);
        const QStringList line = program == "sway"_L1 ? sway() : QStringList{program} + arguments;
        if (!process->launch(line.first(), line.mid(1)))
            return;
        QStringList names;
        const auto hasSocket = [&] {
            names = QDir(m_folder.path()).entryList({u"wayland-*"_s}, QDir::System);
            return !names.isEmpty();
        };
        if (!waitUntil(hasSocket))
            return;
        environment.insert(u"WAYLAND_DISPLAY"_s, names[0]);
        m_display = m_folder.filePath(names[0]).toUtf8();
    }

    /// The path of its socket; empty when it did not start.
    const QByteArray &display() const { return m_display; }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::unique_ptr<ChildProcess> process;

private:
    /// sway in the folder. It refuses to run as root, so it then runs as nobody.
    QStringList sway() const
    {
        const QString configuration = m_folder.filePath(u"sway.conf"_s);
        writeFile(configuration, "output HEADLESS-1 mode 640x480\nxwayland disable\n");
        const QStringList line{u"sway"_s, u"-c"_s, configuration};
        constexpr uid_t nobody = 65534;
        if (::geteuid() != 0 || ::chown(QFile::encodeName(m_folder.path()).constData(), nobody, nobody) != 0)
            return line;
        return QStringList{u"setpriv"_s, u"--reuid=nobody"_s, u"--regid=nogroup"_s, u"--clear-groups"_s,
                           u"--pdeathsig=KILL"_s} +
               line;
    }

    QTemporaryDir m_folder; ///< The session's, and everybody's home.
    QByteArray m_display;
};

/// The adapter in such a session.
struct CompositorStage : PasteboardStage<DataControlPasteboard>
{
    explicit CompositorStage(const QString &program = u"sway"_s, const QStringList &arguments = {})
        : compositor(program == "sway"_L1 ? program : beside(program), arguments)
    {
        if (compositor.display().isEmpty())
            qFatal("no compositor to test in: %s", compositor.process->readAllStandardError().constData());
        environment = compositor.environment;
    }

    void reset() { PasteboardStage::reset(compositor.display()); }

    bool startRogue(const QStringList &arguments)
    {
        return copied([&] { return start(beside(u"RogueSource"_s), arguments); });
    }
    /// The same program as a reader; returns after its first word.
    bool startReader(const QStringList &arguments)
    {
        return start(beside(u"RogueSource"_s), arguments) &&
               waitUntil([&] { return programs.back()->canReadLine(); });
    }
    bool copy(const QString &type, const QByteArray &bytes, const QString & = {})
    {
        const QString file = m_home.filePath(u"copied"_s);
        return writeFile(file, bytes) && copied([&] {
                   ChildProcess &process = add();
                   process.setStandardInputFile(file);
                   return process.launch(u"wl-copy"_s, {u"--foreground"_s, u"--type"_s, type});
               });
    }

    /// What a program gets when it pastes.
    QByteArray paste(const QString &type, const QString & = {}) const
    {
        return output(u"wl-paste"_s, {u"--no-newline"_s, u"--type"_s, type});
    }

    Compositor compositor;

private:
    QTemporaryDir m_home;
};
