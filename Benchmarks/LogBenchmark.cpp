// Measures how fast the logs of Claude Code are read, next to grep over the same files, and what memory it
// takes. The logs are made up: 300 MB in 1,000 files, half of their lines with token figures, then 3 GB in as
// many.

#include "NotchKit/Tools/AIUsage/ClaudeLogReader.h"
#include "Table.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <chrono>
#include <cmath>
#include <fstream>
#include <random>

using namespace Benchmarks;
using namespace Kestrune;

namespace {

constexpr int kFiles = 1000;
constexpr qint64 kFileSize = 300'000'000 / kFiles;
constexpr int kLarger = 10; // The larger logs are so many times the others.
constexpr int kRounds = 9;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "LogBenchmark: %s\n", what);
    std::exit(2);
}

double since(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

/// Writes lines as the assistant does: a text of 0.5 to 50 KB in an object, small ones more often.
class LogMaker
{
public:
    QByteArray file(const QDateTime &now, qint64 size = kFileSize)
    {
        QByteArray text;
        while (text.size() < size)
            text += line(now.addMSecs(-qint64(random(600'000'000))));
        return text;
    }

private:
    unsigned random(unsigned end) { return std::uniform_int_distribution<unsigned>(0, end - 1)(m_engine); }

    QByteArray line(const QDateTime &date)
    {
        const double exponent = std::uniform_real_distribution(std::log(500.0), std::log(50'000.0))(m_engine);
        const auto size = static_cast<qsizetype>(std::exp(exponent));
        const bool isAnswer = random(2) == 0;
        QByteArray line =
            "{\"parentUuid\":null,\"isSidechain\":false,\"cwd\":\"/home/me/project\",\"type\":\"";
        line += isAnswer ? "assistant" : "user";
        line += "\",\"message\":{\"role\":\"any\",";
        if (isAnswer)
            line += answer();
        line += "\"content\":[{\"type\":\"text\",\"text\":\"" + words(size) + "\"}]},\"requestId\":\"req_" +
                QByteArray::number(m_count) + "\",\"timestamp\":\"" +
                date.toString(Qt::ISODateWithMs).toLatin1() + "\"}\n";
        return line;
    }

    /// Every third line updates the response of the line before.
    QByteArray answer()
    {
        m_count += random(3) != 0;
        return "\"id\":\"msg_01" + QByteArray::number(m_count) +
               "\",\"usage\":{\"input_tokens\":" + QByteArray::number(random(5000)) +
               ",\"cache_creation_input_tokens\":" + QByteArray::number(random(20000)) +
               ",\"cache_read_input_tokens\":90000,\"output_tokens\":" + QByteArray::number(random(2000)) +
               ",\"service_tier\":\"standard\"},";
    }

    QByteArray words(qsizetype size)
    {
        static const char *const kWords[] = {
            "the ",   "function ", "returns ",       "\\\"usage\\\" ", "\\n    ",
            "const ", "größe ",    "{\\\"key\\\": ", "if (x < 3) ",    "file "};
        QByteArray text;
        while (text.size() < size)
            text += kWords[random(std::size(kWords))];
        return text;
    }

    std::mt19937 m_engine{7};
    quint64 m_count = 0;
};

void makeLogs(const QString &folder, qint64 size = kFileSize)
{
    LogMaker maker;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (int i = 0; i < kFiles; ++i) {
        const QDir project(folder + QStringLiteral("/project-%1").arg(i % 20));
        QFile file(project.filePath(QStringLiteral("%1.jsonl").arg(i)));
        if (!project.mkpath(QStringLiteral(".")) || !file.open(QIODevice::WriteOnly) ||
            file.write(maker.file(now, size)) < size)
            fail("the logs cannot be written");
    }
}

double timeGrep(const QString &folder)
{
    // Through a pipe: grep stops at the first hit when it writes to the null device.
    const QByteArray command =
        "cd '" + QFile::encodeName(folder) + "' && LC_ALL=C grep -c '\"usage\"' */*.jsonl | wc -l >/dev/null";
    const auto begin = std::chrono::steady_clock::now();
    if (std::system(command.constData()) != 0)
        fail("grep finds nothing");
    return since(begin);
}

double timeSummary(ClaudeLogReader &reader)
{
    const auto begin = std::chrono::steady_clock::now();
    if (!reader.summary(QDateTime::currentDateTimeUtc()))
        fail("the reader finds nothing");
    return since(begin);
}

/// What a start reads that remembers: the logs are as they were, nothing is known in memory.
std::vector<double> timeRestarts(const QString &logs, const QString &memory)
{
    ClaudeLogReader first({logs}, memory);
    Table::note("First read of 3 GB of logs", timeSummary(first), "ms");
    if (!first.remember())
        fail("nothing is remembered");
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) {
        ClaudeLogReader reader({logs}, memory);
        times.push_back(timeSummary(reader));
    }
    return times;
}

/// Kilobytes of this process's memory: "VmRSS:", or at its peak "VmHWM:".
double memory(const char *name)
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double value = 0;
        if (word == name && status >> value)
            return value;
    }
    fail("the kernel does not tell the memory");
}

/// In a process of its own: what reading takes over what the process had before.
int printPeak(const QString &folder)
{
    ClaudeLogReader warm({folder + QLatin1String("/nothing")});
    warm.summary(QDateTime::currentDateTimeUtc());
    const double before = memory("VmRSS:");
    ClaudeLogReader reader({folder});
    timeSummary(reader);
    std::printf("%f\n", (memory("VmHWM:") - before) / 1024);
    return 0;
}

double measurePeak(const QString &folder)
{
    const QByteArray command =
        "'" +
        QFile::encodeName(QCoreApplication::applicationFilePath() + QLatin1String("' --peak '") + folder) +
        "'";
    FILE *pipe = popen(command.constData(), "r");
    double megabytes = -1;
    if (!pipe || std::fscanf(pipe, "%lf", &megabytes) != 1 || pclose(pipe) != 0)
        fail("the memory was not measured");
    return megabytes;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::string_view(argv[1]) == "--peak")
        return printPeak(QFile::decodeName(argv[2]));
    const QTemporaryDir folder;
    makeLogs(folder.path());
    std::vector<double> grep;
    std::vector<double> first;
    std::vector<double> next;
    for (int i = 0; i < kRounds; ++i) {
        grep.push_back(timeGrep(folder.path()));
        ClaudeLogReader reader({folder.path()});
        first.push_back(timeSummary(reader));
        next.push_back(timeSummary(reader));
    }
    Table table;
    Table::note("grep -c '\"usage\"' over 300 MB of logs", median(grep), "ms");
    Table::note("First read of the same logs", median(first), "ms");
    table.add({"  of grep's time", median(first) / median(grep), 2, "×", "medians of rounds in turn"});
    table.add({"  memory at its peak over idle", measurePeak(folder.path()), 32, "MB", ""});
    table.add({"Next read, nothing appended, 1,000 files", median(next), 5, "ms", ""});
    const QTemporaryDir larger;
    makeLogs(larger.path(), kLarger * kFileSize);
    const QString memory = larger.filePath(QStringLiteral("usage"));
    table.add({"Read after a restart, 3 GB in 1,000 files", median(timeRestarts(larger.path(), memory)), 20,
               "ms", ""});
    Table::note("  what is remembered", static_cast<double>(QFileInfo(memory).size()) / 1e6, "MB");
    return table.exitStatus();
}
