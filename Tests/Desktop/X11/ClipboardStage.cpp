#include "Desktop/X11/ClipboardStage.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

struct Command
{
    QString program;
    QStringList arguments;
};

QString beside(const QString &program) { return QCoreApplication::applicationDirPath() + u'/' + program; }

Command command(const QString &client, const QString &action, const QString &type,
                const QStringList &file = {})
{
    if (client == "qt"_L1)
        return {beside(u"QtClient"_s), QStringList{action, type} + file};
    if (client == "gtk"_L1) // The system's own interpreter, which has the bindings.
        return {u"/usr/bin/python3"_s, QStringList{QStringLiteral(KESTRUNE_GTK_CLIENT), action, type} + file};
    const QString target = type == "text/plain"_L1 ? u"UTF8_STRING"_s : type;
    const QString direction = file.isEmpty() ? u"-o"_s : u"-i"_s;
    return {u"xclip"_s,
            QStringList{u"-quiet"_s, u"-selection"_s, u"clipboard"_s, u"-t"_s, target, direction} + file};
}

} // namespace

ClipboardStage::ClipboardStage()
{
    environment.remove(u"WAYLAND_DISPLAY"_s);
    environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    for (const auto &name : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s})
        environment.insert(name, m_home.path());
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    display = std::make_unique<VirtualDisplay>(VirtualDisplay::Server::Plain, QSize(800, 600), environment);
    environment.insert(u"DISPLAY"_s, display->name());
    if (display->name().isEmpty())
        qFatal("no display to test on");
}

void ClipboardStage::reset()
{
    programs.clear();
    pasteboard = std::make_unique<Kestrune::X11Pasteboard>(display->name().toLatin1());
    pasteboard->types().waitForFinished(); // Answered once it watches.
}

bool ClipboardStage::copied(const std::function<bool()> &copy, qint64 limit)
{
    const qint64 before = pasteboard->changeCount();
    return copy() && waitUntil([&] { return pasteboard->changeCount() > before; }, limit);
}

bool ClipboardStage::startRogue(const QStringList &arguments)
{
    return copied([&] { return start(beside(u"RogueOwner"_s), arguments); });
}

bool ClipboardStage::copy(const QString &client, const QString &type, const QByteArray &bytes)
{
    const auto [program, arguments] = command(client, u"copy"_s, type, {file(u"copied"_s, bytes)});
    return copied([&, program = program, arguments = arguments] { return start(program, arguments); });
}

void ClipboardStage::write(const Kestrune::PasteboardContent &content)
{
    pasteboard->write(content);
    pasteboard->types().waitForFinished();
}

QByteArray ClipboardStage::paste(const QString &client, const QString &type)
{
    const auto [program, arguments] = command(client, u"paste"_s, type);
    ChildProcess process(environment);
    if (!process.launch(program, arguments) || !process.waitForFinished(120000))
        return {};
    return process.readAllStandardOutput();
}

bool ClipboardStage::start(const QString &program, const QStringList &arguments)
{
    programs.push_back(std::make_unique<ChildProcess>(environment));
    return programs.back()->launch(program, arguments);
}

bool ClipboardStage::type(const QString &window, const QStringList &keys)
{
    ChildProcess process(environment);
    return process.launch(u"xdotool"_s,
                          QStringList{u"search"_s, u"--sync"_s, u"--onlyvisible"_s, u"--name"_s, window,
                                      u"windowfocus"_s, u"--sync"_s, u"key"_s, u"--delay"_s, u"100"_s} +
                              keys) &&
           process.waitForFinished(120000);
}

QString ClipboardStage::file(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}
