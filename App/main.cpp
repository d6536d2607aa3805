#include "Application.h"
#include "Async/Threads.h"
#include "CommandLine.h"
#include "ControlService.h"
#include "Desktop/Session/CoreDumps.h"
#include "GapWatch.h"
#include "LocalServices.h"
#include "Log.h"
#include "NotchKit/NotchStrings.h"
#include "SingleInstance.h"
#include "Watchdog.h"
#include "WindowSystems.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QLocale>
#include <QQuickWindow>

#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

#include <malloc.h>

namespace {

using namespace Kestrune;
using namespace std::chrono_literals;

constexpr auto kLongestEnd = 1500ms;
constexpr auto kLongestWait =
    1000ms; // For other threads: one that hangs must not be there when the rest is taken down.

/// Environment variables that are set for a while only: programs that this one starts do not inherit them.
class TemporaryEnvironment
{
public:
    void set(const char *name, const QByteArray &value)
    {
        m_before.emplace_back(name, qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray());
        qputenv(name, value);
    }

    void restore()
    {
        for (const auto &[name, value] : std::exchange(m_before, {})) {
            if (value.isNull())
                qunsetenv(name);
            else
                qputenv(name, value);
        }
    }

private:
    std::vector<std::pair<const char *, QByteArray>> m_before;
};

/// What must be decided before the application object is made.
TemporaryEnvironment setUpPlatform(const WindowSystemChoice &windows)
{
    // The notch is small and still: drawing it in memory starts faster and takes a fraction of the memory
    // of a graphics driver.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    TemporaryEnvironment environment;
    environment.set("QT_XCB_GL_INTEGRATION", "none");
    environment.set("QT_NO_GLIB", "1");
    environment.set("QT_QPA_PLATFORM", windows.qtPlatform);
    return environment;
}

/// Gives the memory of copied pictures back as soon as it is free. Without a fixed limit the allocator
/// learns to keep ever larger blocks.
void setUpMemory()
{
    constexpr int kLargest = 512 * 1024; // Bytes.
    mallopt(M_MMAP_THRESHOLD, kLargest);
}

void setUpFont()
{
    const QString inter = QStringLiteral("Inter");
    if (!QFontDatabase::hasFamily(inter))
        return;
    // Scripts that it lacks. One Chinese character looks different in each language that has it, and only the
    // interface's Arabic has lines as high as the others'.
    static const QHash<QString, QString> scripts{
        {QStringLiteral("ar"), QStringLiteral("Noto Sans Arabic UI")},
        {QStringLiteral("ja"), QStringLiteral("Noto Sans CJK JP")},
        {QStringLiteral("ko"), QStringLiteral("Noto Sans CJK KR")},
        {QStringLiteral("zh-CN"), QStringLiteral("Noto Sans CJK SC")}};
    QStringList families{inter};
    const QString script = scripts.value(notchLanguage());
    if (!script.isEmpty())
        families.append(script);
    QFont font = QGuiApplication::font();
    font.setFamilies(families);
    QGuiApplication::setFont(font);
}

/// The views are turned around where the language is written from right to left.
void setUpDirection() { QGuiApplication::setLayoutDirection(QLocale(notchLanguage()).textDirection()); }

int runProgram(int argc, char *argv[], const LaunchRequest &request)
{
#ifdef NDEBUG
    CoreDumps::forbid();
#endif
    setUpMemory();
    if (!LocalServices::isEnvironmentValid()) {
        std::fprintf(stderr, "Kestrune: %s is no address like http://127.0.0.1:8080\n",
                     LocalServices::kVariable);
        return 2;
    }
    QString fault;
    const std::optional<WindowSystemChoice> windows = chooseWindowSystem(&fault);
    if (!windows) {
        std::fprintf(stderr, "Kestrune: %s\n", qPrintable(fault));
        return 1;
    }
    TemporaryEnvironment environment = setUpPlatform(*windows);
    QGuiApplication application(argc, argv);
    environment.restore();
    qCInfo(appLog, "version " KESTRUNE_VERSION ", windows by %s: %s", windows->name,
           qUtf8Printable(windows->reason));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(QStringLiteral("example.kestrune.Kestrune"));
    setUpFont();
    setUpDirection();

    const QDBusConnection bus = QDBusConnection::sessionBus();
    ControlService control;
    SingleInstance instance(bus, control);
    std::unique_ptr<Application> program;
    instance.claim([&](SingleInstance::Outcome outcome) {
        if (outcome == SingleInstance::Outcome::second && request.restored) {
            QCoreApplication::exit(0); // It was opened at the login as well.
            return;
        }
        if (outcome == SingleInstance::Outcome::second) {
            qCInfo(appLog, "one is running already: it is handed the request");
            const bool asBefore = request.open && !request.tool;
            const QString tool = asBefore ? QString() : rawValue(request.tool.value_or(NotchTool::home));
            instance.handOver(tool, [](bool taken) {
                if (!taken)
                    std::fputs("Kestrune: it is running already, but does not answer\n", stderr);
                QCoreApplication::exit(taken ? 0 : 1);
            });
            return;
        }
        if (outcome == SingleInstance::Outcome::noBus)
            std::fputs("Kestrune: there is no session bus; commands and a second start cannot reach it\n",
                       stderr);
        program = std::make_unique<Application>(bus, *windows, FeedSource::ofProgram(), control);
        program->start(request);
    });
    const GapWatch gaps;
    const int status = QGuiApplication::exec();

    // Everything was saved when it was changed. The next start must not meet this one, however long its end
    // takes.
    instance.release();
    const Watchdog watchdog(kLongestEnd, status); // Until the very end: what is static is taken down too.
    program.reset();
    if (!Threads::waitForAll(kLongestWait))
        endProcess(status);
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Kestrune"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTRUNE_VERSION));
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const CommandLine command = CommandLine::parse(arguments);
    if (command.verb == CommandLine::Verb::start)
        return runProgram(argc, argv, command.launch);
    const QCoreApplication application(argc, argv);
    return runCommand(command);
}
