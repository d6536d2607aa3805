#include "PictureFile.h"

#include "NotchKit/Platform/Utc.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr int kMostChunks = 64;        // Before the picture's own data; a few are usual.
constexpr quint32 kLongestText = 4096; // Bytes of a text that are looked at.
constexpr qint64 kTail = 64;           // Bytes at a file's end that are looked at.

/// What tools call themselves in a picture's text "Software", in small letters.
constexpr std::array kTools{"screenshot",    "spectacle", "flameshot", "ksnip",
                            "screenshooter", "scrot",     "grim"};

/// A file that is read at given places; never a device or a link.
class Reader
{
public:
    explicit Reader(const QByteArray &path)
        : m_file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK))
    {
        struct stat status
        {};
        if (m_file >= 0 && ::fstat(m_file, &status) == 0 && S_ISREG(status.st_mode))
            m_size = status.st_size;
    }
    ~Reader()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    Q_DISABLE_COPY_MOVE(Reader)

    qint64 size() const { return m_size; }

    /// Shorter than asked for at the end, empty on errors.
    QByteArray at(qint64 place, qint64 length) const
    {
        QByteArray bytes(length, Qt::Uninitialized);
        const ssize_t read =
            m_size > 0 ? ::pread(m_file, bytes.data(), static_cast<size_t>(length), place) : 0;
        bytes.resize(std::max<ssize_t>(read, 0));
        return bytes;
    }

private:
    int m_file;
    qint64 m_size = 0;
};

QDateTime utc(const statx_timestamp &time)
{
    return QDateTime::fromMSecsSinceEpoch(time.tv_sec * 1000 + time.tv_nsec / 1'000'000, kUtc);
}

bool isPng(const QByteArray &head) { return head.startsWith("\x89PNG\r\n\x1a\n"); }

/// "Software", an end sign, further fields in the longer form, the tool's name.
bool namesTool(const QByteArray &text)
{
    if (!text.startsWith(QByteArray("Software\0", 9)))
        return false;
    const QByteArray value = text.mid(9).toLower();
    return std::ranges::any_of(kTools, [&](const char *tool) { return value.contains(tool); });
}

} // namespace

std::optional<PictureStatus> statPicture(const QByteArray &path)
{
    struct statx status
    {};
    constexpr unsigned kAsked = STATX_TYPE | STATX_SIZE | STATX_MTIME | STATX_BTIME;
    const int result =
        ::statx(AT_FDCWD, path.constData(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, kAsked, &status);
    if (result != 0 || !S_ISREG(status.stx_mode) || status.stx_size == 0)
        return std::nullopt;
    const bool knowsBirth = (status.stx_mask & STATX_BTIME) != 0 && status.stx_btime.tv_sec > 0;
    return PictureStatus{utc(knowsBirth ? status.stx_btime : status.stx_mtime), utc(status.stx_mtime),
                         static_cast<qint64>(status.stx_size)};
}

bool isWholePicture(const QByteArray &path)
{
    const Reader file(path);
    const QByteArray head = file.at(0, 12);
    const QByteArray tail = file.at(std::max<qint64>(file.size() - kTail, 0), kTail);
    if (isPng(head))
        return tail.contains(QByteArray("\0\0\0\0IEND\xae\x42\x60\x82", 12));
    if (head.startsWith("\xff\xd8"))
        return tail.contains("\xff\xd9");
    if (head.startsWith("RIFF") && head.size() == 12 && head.endsWith("WEBP"))
        return file.size() >= qint64{qFromLittleEndian<quint32>(head.constData() + 4)} + 8;
    return false;
}

bool isMarkedAsScreenshot(const QByteArray &path)
{
    const Reader file(path);
    if (!isPng(file.at(0, 8)))
        return false;
    qint64 place = 8;
    for (int i = 0; i < kMostChunks; ++i) {
        const QByteArray head = file.at(place, 8);
        if (head.size() < 8 || head.endsWith("IDAT"))
            return false;
        const auto length = qFromBigEndian<quint32>(head.constData());
        if ((head.endsWith("tEXt") || head.endsWith("iTXt")) &&
            namesTool(file.at(place + 8, std::min(length, kLongestText))))
            return true;
        place += qint64{length} + 12;
    }
    return false;
}

} // namespace Kestrune
