#include "Decoder.h"
#include "Desktop/Reader/ReaderWire.h"
#include "Walls.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using namespace Kestrune;
using ReaderWire::Answer;
using ReaderWire::Question;

struct Task
{
    Question question{};
    int file = -1;
    int memory = -1;
};

/// Nothing when there will be no more.
std::optional<Task> nextTask()
{
    pollfd socket{ReaderWire::kSocket, POLLIN, 0};
    if (::poll(&socket, 1, ReaderWire::kLongestIdle * 1000) <= 0)
        return {};
    Task task;
    std::array<int, 2> files{-1, -1};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof files)> control{};
    iovec part{&task.question, sizeof task.question};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    if (::recvmsg(ReaderWire::kSocket, &message, MSG_CMSG_CLOEXEC) != sizeof task.question)
        return {};
    const cmsghdr *const header = CMSG_FIRSTHDR(&message);
    if (!header || header->cmsg_type != SCM_RIGHTS || header->cmsg_len != CMSG_LEN(sizeof files))
        return {};
    std::memcpy(files.data(), CMSG_DATA(header), sizeof files);
    task.file = files[0];
    task.memory = files[1];
    const int side = task.question.side;
    return side > 0 && side <= ReaderWire::kMostSide ? std::optional(task) : std::nullopt;
}

ReadPicture read(const Task &task)
{
    QFile file;
    if (!file.open(task.file, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) || !file.seek(0))
        return {};
    PictureWish wish;
    wish.fit = static_cast<PictureWish::Fit>(task.question.fit);
    wish.formats = static_cast<PictureWish::Formats>(task.question.formats);
    wish.side = task.question.side;
    wish.mostPixels = task.question.mostPixels;
    return Decoder::decode(file, wish);
}

bool put(const QImage &image, const Task &task)
{
    const auto side = static_cast<std::size_t>(task.question.side);
    const std::size_t size = side * side * ReaderWire::kPixelBytes;
    void *const memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, task.memory, 0);
    if (memory == MAP_FAILED)
        return false;
    const auto row = static_cast<std::size_t>(image.width()) * ReaderWire::kPixelBytes;
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(static_cast<char *>(memory) + static_cast<std::size_t>(y) * row, image.constScanLine(y),
                    row);
    ::munmap(memory, size);
    return true;
}

Answer answerFor(const ReadPicture &picture)
{
    Answer answer{};
    answer.width = picture.image.width();
    answer.height = picture.image.height();
    answer.wholeWidth = picture.size.width();
    answer.wholeHeight = picture.size.height();
    std::copy_n(picture.thumbnailOf.constData(), picture.thumbnailOf.size(), answer.thumbnailOf.begin());
    answer.thumbnailTime = picture.thumbnailTime;
    return answer;
}

void answer(const Task &task)
{
    const ReadPicture picture = read(task);
    Answer answer{};
    if (!picture.image.isNull() && put(picture.image, task))
        answer = answerFor(picture);
    ::close(task.memory);
    ::send(ReaderWire::kSocket, &answer, sizeof answer, MSG_NOSIGNAL);
}

} // namespace

int main(int argc, char *argv[])
{
    // Whoever started it waits for this process alone, and need not know when its work is done.
    if (::fork() != 0)
        return 0;
    qputenv("QT_NO_GLIB", "1"); // Its threads would open pipes.
    const QCoreApplication application(argc, argv);
    Decoder::prepare();
    if (!Walls::raise())
        return 1;
    while (const auto task = nextTask()) {
        ::alarm(ReaderWire::kLongest);
        answer(*task);
        ::alarm(0);
    }
    return 0;
}
