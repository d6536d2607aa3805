#include "Desktop/DataControl/CompositorStage.h"

#include <unistd.h>

namespace {

constexpr auto kConfiguration = "output HEADLESS-1 mode 640x480\nxwayland disable\n";

QString besideTest(const QString &program) { return QCoreApplication::applicationDirPath() + u'/' + program; }

struct Command
{
    QString program;
    QStringList arguments;
};

/// sway in that folder. It refuses to run as root, so it then runs as nobody.
Command sway(const QString &folder)
{
    const QString configuration = folder + u"/sway.conf"_s;
    writeFile(configuration, kConfiguration);
    const QStringList arguments{u"-c"_s, configuration};
    constexpr uid_t nobody = 65534;
    if (::geteuid() != 0 || ::chown(QFile::encodeName(folder).constData(), nobody, nobody) != 0)
        return {u"sway"_s, arguments};
    return {u"setpriv"_s, QStringList{u"--reuid=nobody"_s, u"--regid=nogroup"_s, u"--clear-groups"_s,
                                      u"--pdeathsig=KILL"_s, u"sway"_s} +
                              arguments};
}

} // namespace

Compositor::Compositor(const QString &program, const QStringList &arguments)
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
    const Command command =
        program == "sway"_L1 ? sway(m_folder.path()) : Command{besideTest(program), arguments};
    if (!process->launch(command.program, command.arguments))
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

CompositorStage::CompositorStage(const QString &program, const QStringList &arguments)
    : compositor(program, arguments)
{
    if (compositor.display().isEmpty())
        qFatal("no compositor to test in: %s", compositor.process->readAllStandardError().constData());
}

void CompositorStage::reset()
{
    programs.clear();
    pasteboard = std::make_unique<DataControlPasteboard>(compositor.display());
    pasteboard->types().waitForFinished(); // Answered once it watches.
}

ChildProcess &CompositorStage::add()
{
    programs.push_back(std::make_unique<ChildProcess>(compositor.environment));
    return *programs.back();
}

bool CompositorStage::copied(const std::function<bool()> &copy)
{
    const qint64 before = pasteboard->changeCount();
    return copy() && waitUntil([&] { return pasteboard->changeCount() > before; });
}

bool CompositorStage::startRogue(const QStringList &arguments)
{
    return copied([&] { return add().launch(besideTest(u"RogueSource"_s), arguments); });
}

bool CompositorStage::startReader(const QStringList &arguments)
{
    ChildProcess &process = add();
    return process.launch(besideTest(u"RogueSource"_s), arguments) &&
           waitUntil([&] { return process.canReadLine(); });
}

bool CompositorStage::copy(const QString &type, const QByteArray &bytes)
{
    const QString file = m_home.filePath(u"copied"_s);
    if (!writeFile(file, bytes))
        return false;
    return copied([&] {
        ChildProcess &process = add();
        process.setStandardInputFile(file);
        return process.launch(u"wl-copy"_s, {u"--foreground"_s, u"--type"_s, type});
    });
}

void CompositorStage::write(const PasteboardContent &content)
{
    pasteboard->write(content);
    pasteboard->types().waitForFinished();
}

QByteArray CompositorStage::paste(const QString &type)
{
    ChildProcess process(compositor.environment);
    if (!process.launch(u"wl-paste"_s, {u"--no-newline"_s, u"--type"_s, type}) ||
        !process.waitForFinished(120000))
        return {};
    return process.readAllStandardOutput();
}
