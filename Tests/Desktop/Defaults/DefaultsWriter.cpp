#include "Desktop/Defaults/SqliteUserDefaults.h"

#include <QString>

#include <algorithm>
#include <cstdio>
#include <string_view>

#include <unistd.h>

using Kestrune::SqliteUserDefaults;

namespace {

QString counterKey(qint64 number) { return QStringLiteral("counter.%1").arg(number % 4); }

/// Counts on from the file's highest counter until killed, and reports each number once it is written.
[[noreturn]] void count(SqliteUserDefaults &defaults)
{
    qint64 number = 0;
    for (qint64 key = 0; key < 4; ++key)
        number = std::max(number, defaults.value<qint64>(counterKey(key)).value_or(0));
    for (;;) {
        ++number;
        defaults.setObject(counterKey(number), number);
        const QByteArray line = QByteArray::number(number) + '\n';
        if (write(STDOUT_FILENO, line.constData(), static_cast<size_t>(line.size())) != line.size())
            _exit(1);
    }
}

void fill(SqliteUserDefaults &defaults, const QString &name, int size)
{
    for (int i = 0; i < size; ++i)
        defaults.setObject(QStringLiteral("%1.%2").arg(name).arg(i), qint64{i});
}

} // namespace

/// A second process for the tests: `count FILE`, or `fill FILE NAME COUNT`.
int main(int argc, char *argv[])
{
    if (argc < 3)
        return 2;
    SqliteUserDefaults defaults(QString::fromLocal8Bit(argv[2]));
    if (std::string_view(argv[1]) == "count")
        count(defaults);
    if (argc < 5)
        return 2;
    fill(defaults, QString::fromLocal8Bit(argv[3]), QByteArray(argv[4]).toInt());
    return 0;
}
