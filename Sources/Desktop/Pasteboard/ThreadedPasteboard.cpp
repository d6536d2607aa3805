#include "ThreadedPasteboard.h"

#include "Async/Pledge.h"
#include "Async/Threads.h"
#include "PasteboardLoop.h"

#include <csignal>

namespace Kestrune {

namespace {

/// Leaves signals to the main thread. A server or a reader that goes away must be an error of the connection,
/// not the end of the program.
void leaveSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
}

} // namespace

ThreadedPasteboard::ThreadedPasteboard(const MakeLoop &makeLoop)
    : m_link(std::make_shared<PasteboardLink>())
{
    m_link->tell = [this, back = m_back.handle()] {
        back.post([this] {
            m_link->isTelling = false;
            Q_EMIT changed();
        });
    };
    const bool started = Threads::start("pasteboard", [link = m_link, makeLoop] {
        leaveSignals();
        makeLoop(*link)->run();
        link->commands.close();
    });
    if (!started)
        m_link->commands.close();
}

ThreadedPasteboard::~ThreadedPasteboard() { m_link->commands.close(); }

qint64 ThreadedPasteboard::changeCount() const { return m_link->changeCount; }

bool ThreadedPasteboard::isOrphaned() const { return m_link->orphaned; }

template <typename Answer, typename Question>
QFuture<Answer> ThreadedPasteboard::ask(Question question)
{
    const Pledge<Answer> pledge;
    m_link->commands.post([question, pledge](PasteboardLoop &loop) {
        (loop.*question)([pledge](auto answer) { pledge.give(std::move(answer)); });
    });
    return pledge.future();
}

QFuture<QStringList> ThreadedPasteboard::types() { return ask<QStringList>(&PasteboardLoop::types); }

QFuture<QList<QUrl>> ThreadedPasteboard::fileUrls() { return ask<QList<QUrl>>(&PasteboardLoop::fileUrls); }

QFuture<std::optional<EncodedPicture>> ThreadedPasteboard::picture()
{
    return ask<std::optional<EncodedPicture>>(&PasteboardLoop::picture);
}

QFuture<std::optional<QString>> ThreadedPasteboard::string()
{
    return ask<std::optional<QString>>(&PasteboardLoop::string);
}

QFuture<QByteArray> ThreadedPasteboard::html() { return ask<QByteArray>(&PasteboardLoop::html); }

QFuture<QStringList> ThreadedPasteboard::owners() { return ask<QStringList>(&PasteboardLoop::owners); }

qint64 ThreadedPasteboard::write(const PasteboardContent &content)
{
    m_link->orphaned = false;
    m_link->commands.post([content](PasteboardLoop &loop) { loop.offer(content); });
    return ++m_link->changeCount;
}

} // namespace Kestrune
