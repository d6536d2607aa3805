#pragma once

#include "Async/PostBack.h"
#include "NotchKit/Platform/Pasteboard.h"

#include <functional>
#include <memory>

namespace Kestrune {

class PasteboardLoop;
struct PasteboardLink;

/// A pasteboard on a thread of its own, which talks to the other programs and sleeps until something is
/// copied, pasted or asked for; the main thread only leaves it a note and reads a counter.
///
/// At its end the thread may still give the content to the desktop, for a second at most; who waits for all
/// threads waits for that, too.
///
/// Without a connection to the window system, or once it is lost, the pasteboard is empty for good. What was
/// on the clipboard when the object was made is no change.
class ThreadedPasteboard : public Pasteboard
{
    Q_OBJECT

public:
    ~ThreadedPasteboard() override;
    Q_DISABLE_COPY_MOVE(ThreadedPasteboard)

    qint64 changeCount() const override;
    bool isOrphaned() const override;
    QFuture<QStringList> types() override;
    QFuture<QList<QUrl>> fileUrls() override;
    QFuture<std::optional<EncodedPicture>> picture() override;
    QFuture<std::optional<QString>> string() override;
    QFuture<QByteArray> html() override;
    QFuture<QStringList> owners() override;
    qint64 write(const PasteboardContent &content) override;

protected:
    /// Called on the thread.
    using MakeLoop = std::function<std::unique_ptr<PasteboardLoop>(PasteboardLink &)>;

    explicit ThreadedPasteboard(const MakeLoop &makeLoop);

private:
    template <typename Answer, typename Question>
    QFuture<Answer> ask(Question question);

    std::shared_ptr<PasteboardLink> m_link; ///< With the thread.
    PostBack m_back;
};

} // namespace Kestrune
