#include "ScreenshotTools.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <array>

namespace Kestrune {

namespace {

constexpr int kLongestWait = 2000;       // Milliseconds, for a program that only reads a setting.
constexpr qint64 kLongestFile = 1 << 20; // Bytes; settings are a few kilobytes.

enum class Meaning { folder, pattern, title };

/// One line of a tool's settings that matters.
struct Setting
{
    const char *file; ///< Below the configuration folder.
    const char *key;
    Meaning meaning;
};

constexpr std::array kSettings{
    Setting{"xfce4/xfce4-screenshooter", "screenshot_dir", Meaning::folder},
    Setting{"xfce4/xfce4-screenshooter", "title", Meaning::title},
    Setting{"flameshot/flameshot.ini", "savePath", Meaning::folder},
    Setting{"flameshot/flameshot.ini", "filenamePattern", Meaning::pattern},
    Setting{"spectaclerc", "defaultSaveLocation", Meaning::folder},
    Setting{"spectaclerc", "imageSaveLocation", Meaning::folder},
    Setting{"ksnip/ksnip.conf", "SaveDirectory", Meaning::folder},
};

/// Settings that lie in the desktop's common store: the schema's name; the key is the same.
constexpr std::array kSchemas{"org.gnome.gnome-screenshot", "org.mate.screenshot"};

/// A path, or an address of a file, as tools write them.
QString folderOf(QString value)
{
    value.replace(QLatin1String("$HOME"), QDir::homePath());
    if (value.startsWith(QLatin1Char('~')))
        value.replace(0, 1, QDir::homePath());
    if (value.startsWith(QLatin1String("file:")))
        value = QUrl(value).path();
    return QDir::isAbsolutePath(value) ? QDir::cleanPath(value) : QString();
}

QString unquoted(QString value)
{
    const bool quoted = value.size() >= 2 &&
                        (value.front() == QLatin1Char('"') || value.front() == QLatin1Char('\'')) &&
                        value.back() == value.front();
    return quoted ? value.mid(1, value.size() - 2) : value;
}

void add(ScreenshotTools &tools, Meaning meaning, const QString &value)
{
    if (value.isEmpty())
        return;
    if (meaning == Meaning::pattern)
        tools.patterns.append(value);
    else if (meaning == Meaning::title)
        tools.patterns.append(QString(value).replace(QLatin1Char('%'), QLatin1String("%%")) +
                              QLatin1String("_%F_%T"));
    else if (const QString folder = folderOf(value); !folder.isEmpty())
        tools.folders.append(folder);
}

/// The lines "key=value" of a file, whatever section they are in; a key's flags in brackets are left out.
void readFile(const QString &path, const QByteArray &name, ScreenshotTools &tools)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray &line : file.read(kLongestFile).split('\n')) {
        const qsizetype equals = line.indexOf('=');
        const QByteArray key = line.left(std::max<qsizetype>(equals, 0)).split('[').constFirst().trimmed();
        for (const Setting &setting : kSettings) {
            if (name == setting.file && key == setting.key)
                add(tools, setting.meaning, unquoted(QString::fromUtf8(line.mid(equals + 1)).trimmed()));
        }
    }
}

bool isInstalled(const char *schema)
{
    const QString file = QStringLiteral("glib-2.0/schemas/%1.gschema.xml").arg(QLatin1String(schema));
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, file).isEmpty();
}

/// Through the desktop's own reader: its library would stay in memory for one value.
QString readSchema(const char *schema)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("gsettings"));
    if (program.isEmpty()) // Each one that cannot be started would leave a descriptor open.
        return {};
    QProcess reader;
    reader.start(program,
                 {QStringLiteral("get"), QString::fromLatin1(schema), QStringLiteral("auto-save-directory")});
    if (!reader.waitForFinished(kLongestWait)) {
        reader.kill();
        reader.waitForFinished();
        return {};
    }
    return unquoted(QString::fromUtf8(reader.readAllStandardOutput()).trimmed());
}

QString configurationFile(const char *name)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/') +
           QLatin1String(name);
}

} // namespace

QStringList screenshotToolFiles()
{
    QStringList files{configurationFile("user-dirs.dirs")};
    for (const Setting &setting : kSettings) {
        if (const QString file = configurationFile(setting.file); !files.contains(file))
            files.append(file);
    }
    return files;
}

ScreenshotTools readScreenshotTools()
{
    ScreenshotTools tools;
    const char *last = "";
    for (const Setting &setting : kSettings) {
        if (std::string_view(last) != setting.file)
            readFile(configurationFile(setting.file), setting.file, tools);
        last = setting.file;
    }
    for (const char *schema : kSchemas) {
        if (isInstalled(schema))
            add(tools, Meaning::folder, readSchema(schema));
    }
    return tools;
}

} // namespace Kestrune
