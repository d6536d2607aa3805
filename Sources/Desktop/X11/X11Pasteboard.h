#pragma once

#include "NotchKit/Platform/Pasteboard.h"

#include <memory>

namespace Kestrune {

/// The X11 clipboard. A thread with a connection of its own talks to the other programs, and sleeps until
/// something is copied, pasted or asked for; the main thread only leaves it a note and reads a counter.
///
/// Without an X server, or once the connection is lost, the pasteboard is empty for good. What was on the
/// clipboard when the object was made is no change.
class X11Pasteboard : public Pasteboard
{
public:
    /// Watches the clipboard of `display`, or of the one in the environment when it is empty.
    explicit X11Pasteboard(const QByteArray &display = {});
    ~X11Pasteboard() override;

    qint64 changeCount() const override;
    QFuture<QStringList> types() override;
    QFuture<QList<QUrl>> fileUrls() override;
    QFuture<std::optional<EncodedPicture>> picture() override;
    QFuture<std::optional<QString>> string() override;
    qint64 write(const PasteboardContent &content) override;

private:
    struct Shared;

    template <typename Answer, typename Question>
    QFuture<Answer> ask(Question question);

    std::shared_ptr<Shared> m_shared; ///< With the thread.
};

} // namespace Kestrune
