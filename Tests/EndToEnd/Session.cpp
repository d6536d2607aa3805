#include "EndToEnd/Session.h"

#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "EndToEnd/Waiting.h"
#include "NotchKit/Tools/Clipboard/ClipboardItem.h"
#include "Support/TestRegistry.h"

#include <QDBusConnectionInterface>

Session::Session()
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const auto &name :
         {u"QT_QPA_PLATFORM"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"XDG_CURRENT_DESKTOP"_s,
          u"SESSION_MANAGER"_s, u"LANGUAGE"_s, u"PULSE_SERVER"_s})
        m_environment.remove(name);
    m_environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_environment.insert(u"HOME"_s, m_home.path());
    for (const auto &name : {u"CONFIG"_s, u"DATA"_s, u"CACHE"_s, u"STATE"_s, u"RUNTIME"_s}) {
        const QString folder = m_home.filePath(name.toLower());
        QDir().mkpath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_environment.insert(u"XDG_%1_%2"_s.arg(name, name == "RUNTIME"_L1 ? u"DIR"_s : u"HOME"_s), folder);
    }
    m_bus = std::make_unique<PrivateBus>(m_environment, m_home.path());
}

Session::~Session() { m_program.reset(); }

void Session::setFlag(const QString &domain, const QString &key, bool value)
{
    SqliteUserDefaults(defaultsFile(domain)).setObject(key, value);
}

bool Session::flag(const QString &domain, const QString &key) const
{
    return read(domain).value<bool>(key).value_or(false);
}

QByteArray Session::data(const QString &key) const
{
    return read(u"kestrune"_s).value<QByteArray>(key).value_or(QByteArray());
}

SqliteUserDefaults Session::read(const QString &domain) const
{
    return SqliteUserDefaults(defaultsFile(domain), SqliteUserDefaults::Access::ReadOnly);
}

QString Session::executable()
{
    return qEnvironmentVariable("KESTRUNE_PROGRAM", QStringLiteral(KESTRUNE_EXECUTABLE));
}

bool Session::start(const QStringList &arguments)
{
    m_program = std::make_unique<ChildProcess>(m_environment);
    m_program->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QStringList line = m_launcher + QStringList{m_executable} + arguments;
    return m_program->launch(line.first(), line.mid(1)) &&
           waitUntil([this] { return !status().isEmpty() || !isRunning(); }) && isRunning();
}

Session::Result Session::command(const QStringList &arguments) const
{
    ChildProcess process(m_environment);
    if (!process.launch(m_executable, arguments) || !process.waitForFinished(120000))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

bool Session::set(const QString &setting, const QString &value) const
{
    const Result result = command({u"settings"_s, u"set"_s, setting, value});
    if (result.status != 0)
        qWarning("settings set %s: %s", qPrintable(setting), qPrintable(result.errors));
    return result.status == 0;
}

QString Session::setting(const QString &name) const
{
    const Result result = command({u"settings"_s, u"get"_s, name});
    return result.output.endsWith(u'\n') ? result.output.chopped(1) : result.output;
}

QJsonObject Session::status() const
{
    // A bus without the program on it is not asked: the command would only say that nothing runs.
    if (!bus().interface()->isServiceRegistered(busName()))
        return {};
    return QJsonDocument::fromJson(command({u"status"_s, u"--json"_s}).output.toUtf8()).object();
}

QJsonArray Session::displays() const { return status().value("displays"_L1).toArray(); }

QJsonObject Session::display(int index) const { return displays().at(index).toObject(); }

bool Session::isOpen(int index) const { return display(index).value("expanded"_L1).toBool(); }

QString Session::selected(int index) const { return display(index).value("selected"_L1).toString(); }

QStringList Session::tools() const
{
    return QVariant(status().value("tools"_L1).toArray().toVariantList()).toStringList();
}

QStringList Session::copiedTexts() const
{
    return each(decodeClipboardItems(data(u"notch.clipboardItems"_s)).value_or(ClipboardItems()),
                &ClipboardItem::text);
}

void Session::copy(const QString &type, const QByteArray &bytes) const
{
    ChildProcess client(m_environment);
    client.launch(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-t"_s, type, u"-i"_s});
    client.write(bytes);
    client.closeWriteChannel();
    client.waitForFinished();
}

qint64 Session::ownMemory() const
{
    qint64 sum = 0;
    const QByteArray report = readFile(u"/proc/%1/smaps_rollup"_s.arg(m_program->processId()));
    for (const QByteArray &line : report.split('\n')) {
        if (line.startsWith("Pss_Anon:") || line.startsWith("Pss_Shmem:"))
            sum += line.mid(line.indexOf(':') + 1).simplified().split(' ').constFirst().toLongLong();
    }
    return report.isEmpty() ? -1 : sum;
}

QString Session::defaultsFile(const QString &domain) const
{
    const QString folder = m_environment.value(u"XDG_CONFIG_HOME"_s) + u'/' + domain;
    QDir().mkpath(folder);
    return folder + u"/defaults.sqlite"_s;
}
