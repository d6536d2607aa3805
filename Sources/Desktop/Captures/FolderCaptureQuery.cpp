#include "FolderCaptureQuery.h"

#include "NotchKit/Platform/UserDefaults.h"

#include <QDir>
#include <QUrl>

#include <utility>

namespace Kestrune {

namespace {

constexpr uint kStack = 512 * 1024;         // Bytes; a setting is read through a program that is started.
constexpr unsigned long kLongestEnd = 2000; // Milliseconds; a dead network folder holds a thread for ever.

} // namespace

/// The findings' way to the main thread; closed when nobody waits for them any more.
class CaptureMailbox
{
public:
    explicit CaptureMailbox(QObject *receiver)
        : m_receiver(receiver)
    {}

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_receiver = nullptr;
    }

    template <typename Function>
    void post(Function function)
    {
        const std::lock_guard lock(m_mutex);
        if (m_receiver)
            QMetaObject::invokeMethod(m_receiver, std::move(function), Qt::QueuedConnection);
    }

private:
    std::mutex m_mutex;
    QObject *m_receiver;
};

FolderCaptureQuery::FolderCaptureQuery(const UserDefaults &preferences)
    : m_preferences(preferences)
{}

FolderCaptureQuery::~FolderCaptureQuery()
{
    FolderCaptureQuery::stop();
    for (auto &thread : m_threads) {
        if (!thread->wait(kLongestEnd))
            std::ignore = thread.release(); // It keeps what it needs, and ends with the process.
    }
}

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
    std::erase_if(m_threads, [](const auto &thread) { return thread->isFinished(); });
    m_orders = std::make_shared<CaptureOrders>();
    m_mailbox = std::make_shared<CaptureMailbox>(this);
    m_orders->look(location());
    const auto report = [this, mailbox = m_mailbox](const CaptureLoop::Findings &findings) {
        mailbox->post([this, from = mailbox.get(), findings] { take(from, findings); });
    };
    const auto &thread = m_threads.emplace_back(
        QThread::create([orders = m_orders, report] { CaptureLoop(orders, report).run(); }));
    thread->setObjectName(QStringLiteral("captures"));
    thread->setStackSize(kStack);
    thread->start(QThread::LowPriority);
}

void FolderCaptureQuery::stop()
{
    if (!m_orders)
        return;
    m_mailbox->close();
    m_orders->end();
    m_mailbox.reset();
    m_orders.reset();
    m_findings = {};
}

void FolderCaptureQuery::requestAccess()
{
    if (m_orders)
        m_orders->look(location());
}

void FolderCaptureQuery::take(const CaptureMailbox *from, const CaptureLoop::Findings &findings)
{
    if (from != m_mailbox.get())
        return; // of a run that has been stopped since
    m_findings = findings;
    if (m_handler)
        m_handler();
}

} // namespace Kestrune
