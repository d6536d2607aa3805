#include "HelperPictures.h"

#include "Log.h"
#include "ReaderProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

Q_LOGGING_CATEGORY(readerLog, "kestrune.reader", QtWarningMsg)

namespace {

/// A file that is nothing but memory; gone with the object.
class MemoryFile
{
public:
    explicit MemoryFile(const char *name)
        : m_descriptor(::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING))
    {}
    ~MemoryFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY_MOVE(MemoryFile)

    int descriptor() const { return m_descriptor; }

    bool write(const QByteArray &data) const
    {
        for (qsizetype done = 0; done < data.size();) {
            const ssize_t written =
                ::write(m_descriptor, data.constData() + done, static_cast<std::size_t>(data.size() - done));
            if (written <= 0)
                return false;
            done += written;
        }
        return m_descriptor >= 0;
    }

    /// Of this size for ever: it cannot be taken away from under who reads it.
    bool reserve(std::size_t size) const
    {
        return m_descriptor >= 0 && ::ftruncate(m_descriptor, static_cast<off_t>(size)) == 0 &&
               ::fcntl(m_descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW) == 0;
    }

private:
    int m_descriptor;
};

/// A copy, which nobody else can change any more.
QImage copied(const MemoryFile &memory, std::size_t size, const ReaderWire::Answer &answer)
{
    void *const pixels = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, memory.descriptor(), 0);
    if (pixels == MAP_FAILED)
        return {};
    const QImage image =
        QImage(static_cast<const uchar *>(pixels), answer.width, answer.height,
               qsizetype{answer.width} * ReaderWire::kPixelBytes, QImage::Format_ARGB32_Premultiplied)
            .copy();
    ::munmap(pixels, size);
    return image;
}

bool isPossible(const ReaderWire::Answer &answer, const PictureWish &wish)
{
    return answer.width > 0 && answer.height > 0 && answer.width <= wish.side && answer.height <= wish.side &&
           answer.wholeWidth > 0 && answer.wholeHeight > 0;
}

} // namespace

HelperPictures::HelperPictures(const QString &helper)
    : m_helper(QFile::encodeName(helper))
{}

HelperPictures::~HelperPictures() = default;

QString HelperPictures::installedHelper()
{
    const QString folder = QCoreApplication::applicationDirPath();
    return QStandardPaths::findExecutable(
        QStringLiteral("kestrune-reader"),
        {folder, folder + QStringLiteral("/../" KESTRUNE_LIBEXEC "/kestrune")});
}

ReadPicture HelperPictures::read(const QByteArray &encoded, const PictureWish &wish)
{
    const MemoryFile file("encoded");
    return file.write(encoded) ? readFile(file.descriptor(), wish) : ReadPicture();
}

ReadPicture HelperPictures::readFile(int descriptor, const PictureWish &wish)
{
    const std::size_t side = static_cast<std::size_t>(wish.side);
    const std::size_t size = side * side * ReaderWire::kPixelBytes;
    const MemoryFile memory("pixels");
    if (!memory.reserve(size))
        return {};
    const ReaderWire::Question question{static_cast<std::int32_t>(wish.fit),
                                        static_cast<std::int32_t>(wish.formats), wish.side, wish.mostPixels};
    const auto answer = ask(question, descriptor, memory.descriptor());
    if (!answer) {
        qCWarning(readerLog, "a picture was given up: what reads it ended, or was not there");
        return {};
    }
    if (!isPossible(*answer, wish))
        return {};
    return {copied(memory, size, *answer),
            {answer->wholeWidth, answer->wholeHeight},
            QByteArray(answer->thumbnailOf.data(), ReaderWire::kDigestBytes),
            answer->thumbnailTime};
}

/// By one that waits for work, or else by a new one, as when that had just ended for want of any.
std::optional<ReaderWire::Answer> HelperPictures::ask(const ReaderWire::Question &question, int file,
                                                      int memory)
{
    std::unique_ptr<ReaderProcess> process = takeIdle();
    std::optional<ReaderWire::Answer> answer = process ? process->ask(question, file, memory) : std::nullopt;
    if (!answer) {
        process = ReaderProcess::start(m_helper);
        answer = process ? process->ask(question, file, memory) : std::nullopt;
    }
    const std::lock_guard lock(m_mutex);
    if (answer && !m_idle)
        m_idle = std::move(process);
    return answer;
}

std::unique_ptr<ReaderProcess> HelperPictures::takeIdle()
{
    const std::lock_guard lock(m_mutex);
    return std::move(m_idle);
}

} // namespace Kestrune
