#include "WaylandDragPasteboard.h"

#include "Desktop/Mime/UriLists.h"
#include "NotchKit/Platform/Pasteboard.h"
#include "WaylandPointer.h"

#include <QDropEvent>
#include <QMimeData>

#include <array>
#include <cerrno>
#include <chrono>

#include <unistd.h>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kDragPatience = 2s;
constexpr qsizetype kMostListed = qsizetype{16} * 1024 * 1024; // Bytes of addresses.

} // namespace

WaylandDragPasteboard::WaylandDragPasteboard(const WaylandPointer &pointer)
    : m_pointer(pointer)
    , m_offers({.entered = [this] { enter(); },
                .left = [this] { leave(); },
                .dropped = [this] { m_over = false; }})
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(kDragPatience);
    m_patience.callOnTimeout([this] { finish({}); });
}

WaylandDragPasteboard::~WaylandDragPasteboard() { finish({}); }

QFuture<QList<QUrl>> WaylandDragPasteboard::fileUrls()
{
    return m_answer ? m_answer->future() : answered(QList<QUrl>());
}

bool WaylandDragPasteboard::eventFilter(QObject *, QEvent *event)
{
    const auto *drop = static_cast<const QDropEvent *>(event);
    if (event->type() == QEvent::DragEnter && !m_over && !drop->source() && drop->mimeData()->hasUrls()) {
        m_over = m_byQt = true;
        m_answer.emplace();
    } else if (event->type() == QEvent::Drop && m_byQt) {
        m_over = false;
        finish(UriLists::localFiles(drop->mimeData()->data(QLatin1String(Pasteboard::kFileUrls)),
                                    Pasteboard::kFileUrls));
    } else if (event->type() == QEvent::DragLeave && m_byQt) {
        leave();
    }
    return false;
}

void WaylandDragPasteboard::leave()
{
    m_over = false;
    finish({});
}

void WaylandDragPasteboard::enter()
{
    finish({});
    m_byQt = false;
    if (m_pointer.isDragging())
        return;
    m_over = true;
    m_answer.emplace();
    m_pipe = m_offers.readFiles();
    if (m_pipe < 0) {
        finish({});
        return;
    }
    m_readable = std::make_unique<QSocketNotifier>(m_pipe, QSocketNotifier::Read);
    QObject::connect(m_readable.get(), &QSocketNotifier::activated, m_readable.get(), [this] { read(); });
    m_patience.start();
}

void WaylandDragPasteboard::read()
{
    std::array<char, 64 * 1024> part{};
    const ssize_t got = ::read(m_pipe, part.data(), part.size());
    if (got < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (got > 0 && m_list.size() + got <= kMostListed) {
        m_list.append(part.data(), got);
        return;
    }
    finish(got == 0 ? UriLists::localFiles(m_list, Pasteboard::kFileUrls) : QList<QUrl>());
}

void WaylandDragPasteboard::finish(const QList<QUrl> &files)
{
    stopReading();
    m_files = files;
    if (m_answer)
        m_answer->give(files);
}

void WaylandDragPasteboard::stopReading()
{
    m_patience.stop();
    m_list.clear();
    if (m_readable) {
        m_readable->setEnabled(false);
        m_readable.release()->deleteLater(); // It may be what calls.
        ::close(std::exchange(m_pipe, -1));
    }
}

} // namespace Kestrune
