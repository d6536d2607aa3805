#include "AutostartLoginItem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace Kestrune {

namespace {

/// A path as one argument of an Exec line: quoted, with the characters that have a meaning there escaped.
QString quotedForExec(QString path)
{
    for (const char16_t special : {u'\\', u'"', u'`', u'$'})
        path.replace(QChar(special), QLatin1Char('\\') + QString(QChar(special)));
    path.replace(QLatin1Char('%'), QLatin1String("%%"));
    // The value itself is unescaped once more when the entry is read.
    path.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    return QLatin1Char('"') + path + QLatin1Char('"');
}

/// The program of an Exec line's value; empty where it names none.
QString programIn(QString value)
{
    value.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    if (!value.startsWith(QLatin1Char('"')))
        return value.section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty);
    QString program;
    for (qsizetype i = 1; i < value.size() && value.at(i) != QLatin1Char('"'); ++i) {
        if (value.at(i) == QLatin1Char('\\'))
            ++i;
        program += value.mid(i, 1);
    }
    return program.replace(QLatin1String("%%"), QLatin1String("%"));
}

bool switchesOff(const QString &line)
{
    const QString compact = line.simplified().remove(QLatin1Char(' '));
    return compact == QLatin1String("Hidden=true") ||
           compact == QLatin1String("X-GNOME-Autostart-enabled=false");
}

} // namespace

AutostartLoginItem::AutostartLoginItem(const QString &executable)
    : m_executable(executable)
    , m_path(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
             QStringLiteral("/autostart/kestrune.desktop"))
{}

bool AutostartLoginItem::isEnabled() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    while (!file.atEnd()) {
        if (switchesOff(QString::fromUtf8(file.readLine())))
            return false;
    }
    return true;
}

void AutostartLoginItem::repair()
{
    constexpr qint64 kLongest = 65'536; // Bytes.
    QFile file(m_path);
    if (!isEnabled() || !file.open(QIODevice::ReadOnly))
        return;
    const QString exec = QStringLiteral("Exec=");
    for (const QString &line : QString::fromUtf8(file.read(kLongest)).split(QLatin1Char('\n'))) {
        if (!line.startsWith(exec))
            continue;
        const QString program = programIn(line.mid(exec.size()).trimmed());
        if (QStandardPaths::findExecutable(program).isEmpty())
            setEnabled(true);
        return;
    }
}

std::optional<QString> AutostartLoginItem::setEnabled(bool enabled)
{
    if (!enabled) {
        QFile file(m_path);
        return !file.exists() || file.remove() ? std::nullopt : std::optional(file.errorString());
    }
    QDir().mkpath(QFileInfo(m_path).path());
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write("[Desktop Entry]\nType=Application\nName=Kestrune\nIcon=kestrune\nExec=" +
               quotedForExec(m_executable).toUtf8() + "\n");
    return file.flush() && file.commit() ? std::nullopt : std::optional(file.errorString());
}

} // namespace Kestrune
