// A file that may be a screenshot: its name, the pattern that a tool was given for names, and what it holds.

#include "Desktop/Captures/PictureFile.h"
#include "Desktop/Captures/ScreenshotNames.h"

#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const int file = ::memfd_create("picture", 0);
    static const QByteArray path = "/proc/self/fd/" + QByteArray::number(file);
    if (::ftruncate(file, 0) != 0 || ::pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
        std::abort();
    isWholePicture(path);
    isMarkedAsScreenshot(path);

    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)).left(255);
    const ScreenshotNames names({text.section(QLatin1Char('/'), 0, 0)});
    const QString name = text.section(QLatin1Char('/'), 1);
    names.isScreenshot(name);
    ScreenshotNames::isScreenshotFolder(name);
    ScreenshotNames::isPicture(name);
    return 0;
}
