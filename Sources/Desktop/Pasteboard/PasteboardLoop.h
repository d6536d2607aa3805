#pragma once

#include "Async/Mailbox.h"
#include "Desktop/Mime/PasteboardTypes.h"

#include <atomic>
#include <chrono>
#include <functional>

namespace Kestrune {

class PasteboardLoop;

/// What the main thread asks of the pasteboard's thread.
using PasteboardCommand = std::function<void(PasteboardLoop &)>;

/// What the two threads share.
struct PasteboardLink
{
    std::atomic<qint64> changeCount = 0; ///< Raised by the loop with every copy by another program.
    std::atomic<bool> orphaned = false;  ///< See Pasteboard::isOrphaned.
    Mailbox<PasteboardCommand> commands;
    std::function<void()> tell;          ///< That the first two have changed; the main thread, a while later.
    std::atomic<bool> isTelling = false; ///< It has not come there yet.
};

/// The pasteboard's own thread: it sleeps until another program or the main thread has something for it. How
/// the programs are reached is up to the window system's own loop; what is asked of them, and how much they
/// may answer, is the same for all.
///
/// A question's `done` is called with the answer, or destroyed without a call when there is none. Questions
/// are carried out one after the other.
class PasteboardLoop
{
public:
    using Clock = std::chrono::steady_clock;
    template <typename Answer>
    using Done = std::function<void(Answer)>;

    explicit PasteboardLoop(PasteboardLink &link)
        : m_link(link)
    {}
    virtual ~PasteboardLoop() = default;
    Q_DISABLE_COPY_MOVE(PasteboardLoop)

    /// Returns when the queue is closed, once the desktop has been left what is copied, or when the
    /// connection to the window system breaks.
    void run();

    virtual void offer(const PasteboardContent &content) = 0;
    void types(Done<QStringList> done);
    void fileUrls(Done<QList<QUrl>> done);
    void picture(Done<EncodedPicture> done);
    void string(Done<QString> done);
    void html(Done<QByteArray> done);
    void owners(Done<QStringList> done);

    /// Milliseconds until then, as poll wants them: -1 for ever.
    static int timeoutUntil(const std::optional<Clock::time_point> &deadline);

protected:
    using Form = PasteboardTypes::Form;

    enum class Change {
        copied,   ///< By another program.
        ours,     ///< By this one.
        gone,     ///< Nothing is offered any more.
        orphaned, ///< As `gone`, because the other program that had copied it ended.
    };

    /// The content is another one from now on.
    void contentReplaced(Change change);

    /// Readable while the main thread has something.
    int commandDescriptor() const { return m_link.commands.descriptor(); }

private:
    virtual bool isAlive() const = 0;

    /// Handles what has arrived, without waiting. Whether there was anything.
    virtual bool handleEvents() = 0;

    /// The owner can be asked, and no answer is coming in.
    virtual bool isReadyToAsk() const = 0;

    /// Until something arrives or a time is up.
    virtual void sleep() = 0;

    /// Asks the owner of the current content for the targets that it offers, `limit` bytes in all.
    virtual void askForTargets(qsizetype limit, Done<QList<QByteArray>> done) = 0;

    /// Asks it for the content in that form, `limit` bytes at most.
    virtual void askForTarget(const QByteArray &target, qsizetype limit, Done<Form> done) = 0;

    /// The names of the program that the content is of.
    virtual QStringList ownerNames() { return {}; }

    /// The last that is done: leaves to the desktop what this program has copied. A second at most.
    virtual void handOver() {}

    bool runCommand();
    bool startQuestion();
    void describe(const Done<QStringList> &done);
    void askForFirst(const QList<QByteArray> &targets, qsizetype limit, const Done<Form> &done);

    PasteboardLink &m_link;
    std::deque<std::function<void()>> m_questions;
    quint64 m_content = 1;          ///< Counts the contents.
    quint64 m_describedContent = 0; ///< Whose types were asked for last.
    QList<QByteArray> m_described;  ///< Its targets.
};

} // namespace Kestrune
