#include "X11Pasteboard.h"

#include "Async/Pledge.h"
#include "Async/Threads.h"
#include "PasteboardLoop.h"

#include <csignal>

namespace Kestrune {

namespace {

/// Leaves signals to the main thread. A server that goes away must be an error of the connection, not the
/// end of the program.
void blockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
}

} // namespace

struct X11Pasteboard::Shared
{
    std::atomic<qint64> changeCount = 0;
    Mailbox<PasteboardCommand> commands;
};

X11Pasteboard::X11Pasteboard(const QByteArray &display)
    : m_shared(std::make_shared<Shared>())
{
    const bool started = Threads::start("pasteboard", [shared = m_shared, display] {
        blockSignals();
        PasteboardLoop(display, shared->commands, shared->changeCount).run();
        shared->commands.close();
    });
    if (!started)
        m_shared->commands.close();
}

X11Pasteboard::~X11Pasteboard() { m_shared->commands.close(); }

qint64 X11Pasteboard::changeCount() const { return m_shared->changeCount; }

template <typename Answer, typename Question>
QFuture<Answer> X11Pasteboard::ask(Question question)
{
    const Pledge<Answer> pledge;
    m_shared->commands.post([question, pledge](PasteboardLoop &loop) {
        (loop.*question)([pledge](auto answer) { pledge.give(std::move(answer)); });
    });
    return pledge.future();
}

QFuture<QStringList> X11Pasteboard::types() { return ask<QStringList>(&PasteboardLoop::types); }

QFuture<QList<QUrl>> X11Pasteboard::fileUrls() { return ask<QList<QUrl>>(&PasteboardLoop::fileUrls); }

QFuture<std::optional<EncodedPicture>> X11Pasteboard::picture()
{
    return ask<std::optional<EncodedPicture>>(&PasteboardLoop::picture);
}

QFuture<std::optional<QString>> X11Pasteboard::string()
{
    return ask<std::optional<QString>>(&PasteboardLoop::string);
}

qint64 X11Pasteboard::write(const PasteboardContent &content)
{
    m_shared->commands.post([content](PasteboardLoop &loop) { loop.offer(content); });
    return ++m_shared->changeCount;
}

} // namespace Kestrune
