#include "Calendars/CalendarAnswers.h"
#include "Calendars/IcalZones.h"
#include "Desktop/Reader/ReaderWire.h"
#include "Pictures/PictureDecoder.h"
#include "Tasks.h"
#include "Walls/Walls.h"

#include <QCoreApplication>
#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <cstring>

#include <unistd.h>

namespace {

using namespace Kestrune;

constexpr std::size_t kPictureMemory = std::size_t{1024} << 20;
constexpr int kPictureMegabytes = 512; // Of one picture that is unpacked: the largest at 8 bytes a pixel.
constexpr std::size_t kCalendarMemory = std::size_t{512} << 20;

ReadPicture read(const ReaderWire::PictureQuestion &question, Tasks::Files &files)
{
    QFile file;
    if (!file.open(files.file.take(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) || !file.seek(0))
        return {};
    PictureWish wish;
    wish.fit = static_cast<PictureWish::Fit>(question.fit);
    wish.formats = static_cast<PictureWish::Formats>(question.formats);
    wish.side = question.side;
    wish.mostPixels = question.mostPixels;
    return PictureDecoder::decode(file, wish);
}

bool isPossible(const ReaderWire::PictureQuestion &question)
{
    if (question.fit == static_cast<std::int32_t>(PictureWish::Fit::whole))
        return question.pixels > 0 && question.pixels <= ReaderWire::kMostWhole &&
               question.mostPixels <= question.pixels;
    return question.side > 0 && question.side <= ReaderWire::kMostSide &&
           question.pixels == question.side * question.side;
}

bool put(const QImage &image, int pixels, int memory)
{
    const Shared shared(memory, static_cast<std::size_t>(pixels) * ReaderWire::kPixelBytes);
    const auto row = static_cast<std::size_t>(image.width()) * ReaderWire::kPixelBytes;
    for (int y = 0; shared.data() && y < image.height(); ++y)
        std::memcpy(shared.data() + static_cast<std::size_t>(y) * row, image.constScanLine(y), row);
    return shared.data();
}

ReaderWire::PictureAnswer answerFor(const ReadPicture &picture)
{
    ReaderWire::PictureAnswer answer{};
    answer.width = picture.image.width();
    answer.height = picture.image.height();
    answer.wholeWidth = picture.size.width();
    answer.wholeHeight = picture.size.height();
    std::copy_n(picture.thumbnailOf.constData(), picture.thumbnailOf.size(), answer.thumbnailOf.begin());
    answer.thumbnailTime = picture.thumbnailTime;
    return answer;
}

int readPictures()
{
    PictureDecoder::prepare();
    QImageReader::setAllocationLimit(kPictureMegabytes);
    if (!Walls::raiseAroundReader(kPictureMemory))
        return 1;
    ReaderWire::PictureQuestion question{};
    while (const auto files = Tasks::next(&question, sizeof question)) {
        if (!isPossible(question))
            return 1;
        Tasks::beginTime();
        const ReadPicture picture = read(question, *files);
        ReaderWire::PictureAnswer answer{};
        if (!picture.image.isNull() && put(picture.image, question.pixels, files->memory.get()))
            answer = answerFor(picture);
        Tasks::endTime();
        Tasks::answer(&answer, sizeof answer);
    }
    return 0;
}

/// So many bytes of it; a file in memory is never read in part.
QByteArray contents(int file, std::uint32_t size)
{
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    return ::pread(file, bytes.data(), size, 0) == static_cast<ssize_t>(size) ? bytes : QByteArray();
}

int readCalendars()
{
    IcalZones::prepare();
    if (!Walls::raiseAroundReader(kCalendarMemory))
        return 1;
    CalendarAnswers answers;
    ReaderWire::CalendarsQuestion asked{};
    while (const auto files = Tasks::next(&asked, sizeof asked)) {
        const auto question = CalendarQuestion::parse(contents(files->file.get(), asked.size));
        if (!question)
            return 1;
        const QByteArray bytes = answers.answer(*question, &Tasks::beginTime).bytes();
        Tasks::endTime();
        ReaderWire::CalendarsAnswer answer{};
        const Shared shared(files->memory.get(), ReaderWire::kMostFound);
        if (shared.data() && bytes.size() <= qsizetype{ReaderWire::kMostFound}) {
            std::memcpy(shared.data(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
            answer.size = static_cast<std::uint32_t>(bytes.size());
        }
        Tasks::answer(&answer, sizeof answer);
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    // Whoever started it waits for this process alone, and need not know when its work is done.
    if (::fork() != 0)
        return 0;
    qputenv("QT_NO_GLIB", "1"); // Its threads would open pipes.
    const QCoreApplication application(argc, argv);
    const QByteArray kind = argc == 2 ? argv[1] : "";
    if (kind == ReaderWire::kPictures)
        return readPictures();
    return kind == ReaderWire::kCalendars ? readCalendars() : 1;
}
