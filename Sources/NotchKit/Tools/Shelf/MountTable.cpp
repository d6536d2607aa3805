#include "MountTable.h"

#include <QFile>

namespace Kestrune {

namespace {

constexpr qint64 kLongestTable = qint64{1024} * 1024;
constexpr int kMountPoint = 4; // The place among a line's fields.

/// Blanks and backslashes stand as octal numbers.
QString unescaped(const QByteArray &field)
{
    QByteArray plain;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool ok = false;
        const int octal = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&ok, 8) : 0;
        plain.append(ok ? static_cast<char>(octal) : field[i]);
        i += ok ? 3 : 0;
    }
    return QFile::decodeName(plain);
}

} // namespace

bool liesIn(const QString &path, const QString &folder)
{
    return path == folder || folder == QLatin1String("/") || path.startsWith(folder + QLatin1Char('/'));
}

MountTable::MountTable(const QByteArray &lines)
{
    for (const QByteArray &line : lines.split('\n')) {
        const auto fields = line.split(' ');
        const QByteArray type = fields.value(fields.indexOf("-") + 1);
        if (fields.size() <= kMountPoint || type == "autofs")
            continue;
        const QString point = unescaped(fields[kMountPoint]);
        m_points.append(point);
        if (type == "fuse.gvfsd-fuse")
            m_collections.append(point);
    }
}

MountTable MountTable::current()
{
    QFile file(QStringLiteral("/proc/self/mountinfo"));
    return file.open(QIODevice::ReadOnly) ? MountTable(file.read(kLongestTable)) : MountTable();
}

QString MountTable::rootOf(const QString &path) const
{
    QString root;
    for (const QString &point : m_points) {
        if (point.size() >= root.size() && liesIn(path, point))
            root = point;
    }
    if (!m_collections.contains(root))
        return root;
    const qsizetype end = path.indexOf(QLatin1Char('/'), root.size() + 1);
    return end < 0 ? root : path.left(end);
}

} // namespace Kestrune
