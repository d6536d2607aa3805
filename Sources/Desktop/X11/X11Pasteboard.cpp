#include "X11Pasteboard.h"

#include "PasteboardLoop.h"

#include <QPromise>

#include <csignal>

namespace Kestrune {

namespace {

constexpr uint kStack = 256 * 1024; // Bytes.

/// An answer that is given in any case: the empty one when nobody has given another.
template <typename Answer>
class Promised
{
public:
    Promised() { m_promise.start(); }
    ~Promised() { give({}); }
    Q_DISABLE_COPY_MOVE(Promised)

    QFuture<Answer> future() const { return m_promise.future(); }

    void give(Answer answer)
    {
        if (std::exchange(m_given, true))
            return;
        m_promise.addResult(std::move(answer));
        m_promise.finish();
    }

private:
    QPromise<Answer> m_promise;
    bool m_given = false;
};

/// Leaves signals to the main thread. A server that goes away must be an error of the connection, not the
/// end of the program.
void blockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
}

} // namespace

X11Pasteboard::X11Pasteboard(const QByteArray &display)
    : m_thread(QThread::create([this, display] {
        blockSignals();
        PasteboardLoop(display, m_commands, m_changeCount).run();
        m_commands.close();
    }))
{
    m_thread->setObjectName(QStringLiteral("pasteboard"));
    m_thread->setStackSize(kStack);
    m_thread->start();
}

X11Pasteboard::~X11Pasteboard()
{
    m_commands.close();
    m_thread->wait();
}

template <typename Answer, typename Question>
QFuture<Answer> X11Pasteboard::ask(Question question)
{
    auto promised = std::make_shared<Promised<Answer>>();
    auto future = promised->future();
    m_commands.post([question, promised = std::move(promised)](PasteboardLoop &loop) {
        (loop.*question)([promised](auto answer) { promised->give(std::move(answer)); });
    });
    return future;
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
    m_commands.post([content](PasteboardLoop &loop) { loop.offer(content); });
    return ++m_changeCount;
}

} // namespace Kestrune
