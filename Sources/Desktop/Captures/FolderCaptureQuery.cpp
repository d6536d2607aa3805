#include "FolderCaptureQuery.h"

#include "Async/Threads.h"
#include "Log.h"
#include "NotchKit/Platform/UserDefaults.h"

#include <QDir>
#include <QUrl>

#include <utility>

namespace Kestrune {

namespace {

constexpr int kMostThreads = 4; // A dead network folder holds one for ever.

} // namespace

FolderCaptureQuery::FolderCaptureQuery(const UserDefaults &preferences)
    : m_preferences(preferences)
{}

FolderCaptureQuery::~FolderCaptureQuery() { FolderCaptureQuery::stop(); }

QString FolderCaptureQuery::location() const
{
    QString path = m_preferences.value<QString>(locationKey()).value_or(QString());
    if (path.startsWith(QLatin1String("file:")))
        path = QUrl(path).toLocalFile();
    if (path.startsWith(QLatin1Char('~')))
        path.replace(0, 1, QDir::homePath());
    return QDir::isAbsolutePath(path) ? QDir::cleanPath(path) : QString();
}

void FolderCaptureQuery::start()
{
    if (m_orders)
        return;
    m_orders = std::make_shared<CaptureOrders>();
    m_orders->post(location());
    launch();
}

void FolderCaptureQuery::launch()
{
    m_delayed = *m_threads >= kMostThreads;
    if (m_delayed) {
        qCInfo(capturesLog, "waits for one of %d threads that hang", kMostThreads);
        return;
    }
    const auto back = m_back.handle();
    const auto report = [this, run = m_orders.get(), back](const CaptureLoop::Findings &findings) {
        back.post([this, run, findings] { take(run, findings); });
    };
    ++*m_threads;
    const bool started =
        Threads::start("captures", [this, orders = m_orders, report, back, threads = m_threads] {
            CaptureLoop(orders, report).run();
            --*threads;
            back.post([this] {
                if (m_delayed)
                    launch();
            });
        });
    if (!started)
        --*m_threads;
}

void FolderCaptureQuery::stop()
{
    if (!m_orders)
        return;
    m_orders->close();
    m_orders.reset();
    m_delayed = false;
    m_findings = {};
}

void FolderCaptureQuery::requestAccess()
{
    if (m_orders)
        m_orders->post(location());
}

void FolderCaptureQuery::take(const CaptureOrders *run, const CaptureLoop::Findings &findings)
{
    if (run != m_orders.get())
        return; // It has been stopped since.
    m_findings = findings;
    if (m_handler)
        m_handler();
}

} // namespace Kestrune
