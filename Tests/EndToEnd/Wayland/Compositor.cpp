#include "EndToEnd/Wayland/Compositor.h"

#include "EndToEnd/Session.h"
#include "EndToEnd/Waiting.h"
#include "EndToEnd/Wayland/WaylandInput.h"
#include "Support/TestRegistry.h"

#include <QRegularExpression>

#include <linux/input-event-codes.h>
#include <unistd.h>

constexpr auto swayConfiguration = R"(
output * mode %1 scale %2
output HEADLESS-1 pos 0 0
output * bg #7090b0 solid_color
default_border none
)"_L1;

// Displays come and go by key alone.
constexpr auto labwcConfiguration = R"(<labwc_config><keyboard>
  <keybind key="W-F1"><action name="VirtualOutputAdd" output_name="SIDE"/></keybind>
  <keybind key="W-F2"><action name="VirtualOutputRemove" output_name="SIDE"/></keybind>
  <keybind key="C-A-W-n"><action name="Execute" command="%1"/></keybind>
</keyboard></labwc_config>
)"_L1;

/// What a user of sway or labwc binds a key to.
QString toggling() { return Session::executable() + u" toggle"_s; }

Compositor::Compositor(Kind kind, bool guests, int scale, QProcessEnvironment &environment)
    : m_kind(kind)
    , m_scale(scale)
    , m_guests(guests)
    , m_environment(environment)
    , m_process([&] {
        QProcessEnvironment own = environment;
        own.insert(u"WLR_BACKENDS"_s, u"headless"_s);
        own.insert(u"WLR_LIBINPUT_NO_DEVICES"_s, u"1"_s);
        own.insert(u"WLR_RENDERER"_s, u"pixman"_s);
        own.insert(u"XDG_RUNTIME_DIR"_s, m_folder.path());
        own.insert(u"KWIN_WAYLAND_NO_PERMISSION_CHECKS"_s, u"1"_s); // Else it takes no input from a test.
        return own;
    }())
    , m_pipeWire(m_process.processEnvironment())
{
    for (ChildProcess *process : {&m_process, &m_pipeWire}) {
        process->setStandardOutputFile(QProcess::nullDevice());
        process->setStandardErrorFile(QProcess::nullDevice());
    }
    switch (kind) {
    case Kind::Sway:
        startSway();
        break;
    case Kind::Labwc:
        startLabwc();
        break;
    case Kind::KWin:
        startKWin();
        break;
    case Kind::Mutter:
        startMutter();
        break;
    }
}

Compositor::~Compositor()
{
    if (m_kind == Kind::Mutter) // Asked to end it takes long.
        m_process.killNow();
    else
        m_process.stop();
}

std::unique_ptr<InputDevices> Compositor::plugInDevices(const QDBusConnection &bus) const
{
    switch (m_kind) {
    case Kind::KWin:
        return makeFakeInput(m_socket);
    case Kind::Mutter:
        return makeRemoteDesktop(bus);
    default:
        return makeVirtualDevices(m_socket);
    }
}

QString Compositor::mode() const { return u"%1x%2"_s.arg(1280 * m_scale).arg(800 * m_scale); }

void Compositor::startSway()
{
    const QString configuration = m_folder.filePath(u"sway"_s);
    const QString guests = m_guests
                               ? u"exec %1\n"_s.arg(tellDisplay())
                               : u"xwayland disable\nbindsym Control+Mod1+Mod4+n exec %1\n"_s.arg(toggling());
    if (writeFile(configuration, (swayConfiguration.arg(mode()).arg(m_scale) + guests).toUtf8()) &&
        launchUnprivileged(u"sway"_s, {u"-c"_s, configuration}))
        awaitSocket(u"wayland-1"_s);
    QStringList ipc; // It comes after the other one.
    waitUntil([&] {
        ipc = QDir(m_folder.path()).entryList({u"sway-ipc.*"_s}, QDir::System);
        return !ipc.isEmpty() || m_process.state() == QProcess::NotRunning;
    });
    m_environment.insert(u"SWAYSOCK"_s, m_folder.filePath(ipc.value(0)));
}

void Compositor::startLabwc()
{
    QStringList arguments{u"-C"_s, m_folder.path()};
    if (m_guests)
        arguments += {u"-s"_s, tellDisplay()};
    if (writeFile(m_folder.filePath(u"rc.xml"_s), labwcConfiguration.arg(toggling()).toUtf8()) &&
        m_process.launch(u"labwc"_s, arguments) && awaitSocket(u"wayland-0"_s))
        setScale(0, m_scale);
}

void Compositor::startKWin()
{
    // Else the pointer is held up where displays meet, and in their corners does not get to the next one at
    // all.
    writeFile(m_environment.value(u"XDG_CONFIG_HOME"_s) + u"/kwinrc"_s,
              "[EdgeBarrier]\nEdgeBarrier=0\nCornerBarrier=false\n");
    QStringList arguments =
        u"--virtual --width %1 --height %2 --scale %3 --output-count 2 --no-lockscreen --socket wayland-0"_s
            .arg(1280 * m_scale)
            .arg(800 * m_scale)
            .arg(m_scale)
            .split(u' ');
    if (m_guests)
        arguments += {u"--xwayland"_s, tellDisplay()};
    if (m_process.launch(u"kwin_wayland"_s, arguments) && awaitSocket(u"wayland-0"_s))
        run(u"kscreen-doctor"_s, {u"output.Virtual-1.disable"_s});
}

void Compositor::startMutter()
{
    const QString log = m_folder.filePath(u"log"_s);
    m_process.setStandardErrorFile(log);
    if (!m_pipeWire.launch(u"pipewire"_s) || !awaitFile(m_pipeWire, u"pipewire-0"_s) ||
        !m_process.launch(u"mutter"_s,
                          {u"--headless"_s, u"--virtual-monitor"_s, mode(), u"--virtual-monitor"_s, mode(),
                           u"--wayland-display"_s, u"wayland-0"_s}))
        return;
    static const QRegularExpression told(u"public X11 display (:\\d+)"_s);
    if (!waitUntil([&] { return told.match(QString::fromUtf8(readFile(log))).hasMatch(); }) ||
        !awaitSocket(u"wayland-0"_s))
        return;
    const QStringList keys =
        QDir(m_folder.path()).entryList({u".mutter-Xwaylandauth.*"_s}, QDir::Files | QDir::Hidden);
    setGuestsDisplay(told.match(QString::fromUtf8(readFile(log))).captured(1),
                     m_folder.filePath(keys.value(0)));
    for (const auto &service : {u"DisplayConfig"_s, u"RemoteDesktop"_s, u"ScreenCast"_s})
        run(u"gdbus"_s,
            {u"wait"_s, u"--session"_s, u"--timeout"_s, u"60"_s, u"org.gnome.Mutter."_s + service});
    arrangeMutter(1);
}

/// The first `count` of its displays, side by side.
bool Compositor::arrangeMutter(qsizetype count)
{
    const auto ask = [this](const QString &method, const QStringList &arguments) {
        const QString service = u"org.gnome.Mutter.DisplayConfig"_s;
        return run(u"gdbus"_s,
                   QStringList{u"call"_s, u"--session"_s, u"-d"_s, service, u"-o"_s,
                               u"/org/gnome/Mutter/DisplayConfig"_s, u"-m"_s, service + u'.' + method} +
                       arguments);
    };
    static const QRegularExpression firstNumber(u"uint32 (\\d+)"_s);
    const QString state = QString::fromUtf8(ask(u"GetCurrentState"_s, {}));
    QStringList displays;
    for (qsizetype index = 0; index < count; ++index)
        displays.append(u"(%1, 0, %2.0, 0, %3, [('Meta-%4', '%5@60.000', {})])"_s.arg(1280 * index)
                            .arg(m_scale)
                            .arg(index == 0 ? "true"_L1 : "false"_L1)
                            .arg(index)
                            .arg(mode()));
    constexpr auto once = "1"; // Neither tried nor remembered.
    return !ask(u"ApplyMonitorsConfig"_s, {firstNumber.match(state).captured(1), QString::fromLatin1(once),
                                           u'[' + displays.join(u", "_s) + u']', u"{}"_s})
                .isEmpty();
}

/// As nobody where the tests run as root, as which it refuses to run.
bool Compositor::launchUnprivileged(const QString &program, const QStringList &arguments)
{
    constexpr uid_t nobody = 65534;
    if (::geteuid() != 0)
        return m_process.launch(program, arguments);
    QProcessEnvironment own = m_process.processEnvironment();
    for (const auto &name : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s})
        own.insert(name, m_folder.path());
    m_process.setProcessEnvironment(own);
    const QStringList words{u"--reuid=nobody"_s, u"--regid=nogroup"_s, u"--clear-groups"_s,
                            u"--pdeathsig=KILL"_s, program};
    return ::chown(QFile::encodeName(m_folder.path()).constData(), nobody, nobody) == 0 &&
           m_process.launch(u"setpriv"_s, words + arguments);
}

bool Compositor::mayCallProgram() const { return m_kind != Kind::Sway || m_guests || ::geteuid() != 0; }

/// Which `process` makes in the folder.
bool Compositor::awaitFile(const ChildProcess &process, const QString &name) const
{
    const QString file = m_folder.filePath(name);
    return waitUntil([&] { return QFile::exists(file) || process.state() == QProcess::NotRunning; }) &&
           process.state() == QProcess::Running;
}

bool Compositor::awaitSocket(const QString &name)
{
    if (!awaitFile(m_process, name))
        return false;
    m_socket = m_folder.filePath(name);
    m_environment.insert(u"WAYLAND_DISPLAY"_s, m_socket);
    const QString display = m_folder.filePath(u"display"_s);
    if (!m_guests || m_kind == Kind::Mutter)
        return true;
    if (!waitUntil([&] { return readFile(display).endsWith(".\n"); }))
        return false;
    const QStringList told = QString::fromUtf8(readFile(display)).split(u'\n');
    setGuestsDisplay(told.value(0), told.value(1));
    return true;
}

void Compositor::setGuestsDisplay(const QString &display, const QString &authority)
{
    m_environment.insert(u"DISPLAY"_s, display);
    m_environment.insert(u"XAUTHORITY"_s, authority);
}

/// A program that writes down which X11 display the guests have, and what opens it; to root it is open in any
/// case.
QString Compositor::tellDisplay() const
{
    const QString program = m_folder.filePath(u"tell"_s);
    writeFile(program,
              "#!/bin/sh\nxhost +si:localuser:root\nprintf '%s\\n%s\\n.\\n' \"$DISPLAY\" \"$XAUTHORITY\" >" +
                  m_folder.filePath(u"display"_s).toUtf8() + '\n');
    QFile::setPermissions(program, QFile::Permissions(0x5555) | QFile::WriteOwner);
    return program;
}

QByteArray Compositor::run(const QString &program, const QStringList &arguments) const
{
    QProcessEnvironment environment = m_environment;
    environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
    ChildProcess process(environment);
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.launch(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        qWarning("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

QStringList Compositor::outputs() const
{
    if (m_kind == Kind::KWin)
        return {u"Virtual-0"_s, u"Virtual-1"_s};
    QStringList names;
    for (const auto &output : QJsonDocument::fromJson(run(u"wlr-randr"_s, {u"--json"_s})).array())
        names.append(output.toObject().value("name"_L1).toString());
    names.sort(); // "HEADLESS-1" before those that came later.
    return names;
}

bool Compositor::plugSecond(bool plugged, WaylandInput &input)
{
    const qsizetype count = plugged ? 2 : 1;
    if (m_kind == Kind::Mutter)
        return arrangeMutter(count);
    if (m_kind == Kind::KWin) {
        run(u"kscreen-doctor"_s, {plugged ? u"output.Virtual-1.enable"_s : u"output.Virtual-1.disable"_s});
        return true;
    }
    if (m_kind == Kind::Sway) {
        run(u"swaymsg"_s, plugged ? QStringList{u"create_output"_s}
                                  : QStringList{u"output"_s, outputs().value(1), u"unplug"_s});
    } else {
        input.key(KEY_LEFTMETA, true);
        input.tap(plugged ? KEY_F1 : KEY_F2);
        input.key(KEY_LEFTMETA, false);
    }
    return waitUntil([&] { return outputs().size() == count; });
}

void Compositor::setScale(int index, double scale) const
{
    const QString output = outputs().value(index);
    if (m_kind == Kind::KWin)
        run(u"kscreen-doctor"_s, {u"output.%1.scale.%2"_s.arg(output).arg(scale)});
    else
        run(u"wlr-randr"_s,
            {u"--output"_s, output, u"--custom-mode"_s, mode(), u"--scale"_s, QString::number(scale)});
}

QImage Compositor::picture([[maybe_unused]] int index) const
{
#ifndef KESTRUNE_WAYLAND
    return {}; // There the tools for it are not installed.
#endif
    if (m_kind == Kind::KWin || m_kind == Kind::Mutter)
        return {};
    const QString file = m_folder.filePath(u"picture.png"_s);
    run(u"grim"_s, {u"-o"_s, outputs().value(index), file});
    return QImage(file);
}
