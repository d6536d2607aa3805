#include "CaptureList.h"

#include "PictureFile.h"

#include <QFile>

#include <algorithm>

#include <dirent.h>

namespace Kestrune {

namespace {

constexpr int kMostOpened = 200;    // Files that are opened because their names tell nothing.
constexpr int kSettledSeconds = 10; // After the last change nobody is writing the file any more.

bool isNewer(const ScreenCapture &one, const ScreenCapture &other)
{
    return one.created != other.created ? one.created > other.created : one.path < other.path;
}

bool isComplete(const ScreenCapture &capture)
{
    return isWholePicture(QFile::encodeName(capture.path)) ||
           capture.modified.secsTo(QDateTime::currentDateTimeUtc()) > kSettledSeconds;
}

} // namespace

std::optional<CaptureList::Candidate>
CaptureList::candidate(const ScreenshotFolder &folder, const QByteArray &name, const ScreenshotNames &names)
{
    const QString text = QFile::decodeName(name);
    if (name.startsWith('.') || !ScreenshotNames::isPicture(text))
        return std::nullopt;
    const bool decided = folder.dedicated || names.isScreenshot(text);
    if (!decided && !text.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return std::nullopt;
    const QString path = folder.path + QLatin1Char('/') + text;
    const auto status = statPicture(QFile::encodeName(folder.path) + '/' + name);
    if (!status)
        return std::nullopt;
    return Candidate{{path, status->created, status->modified}, decided};
}

void CaptureList::list(const ScreenshotFolder &folder, const ScreenshotNames &names, QList<Candidate> &found)
{
    DIR *opened = ::opendir(QFile::encodeName(folder.path).constData());
    if (!opened)
        return;
    while (const dirent *entry = ::readdir(opened)) {
        if (entry->d_type != DT_REG && entry->d_type != DT_UNKNOWN)
            continue;
        if (const auto file = candidate(folder, QByteArray(entry->d_name), names))
            found.append(*file);
    }
    ::closedir(opened);
}

void CaptureList::gather(const ScreenshotFolders &folders, const ScreenshotNames &names)
{
    QList<Candidate> found;
    for (const ScreenshotFolder &folder : folders)
        list(folder, names, found);
    std::ranges::sort(found, isNewer, &Candidate::capture);
    m_captures.clear();
    m_leftOut = false;
    int opened = 0;
    for (const Candidate &file : found) {
        if (m_captures.size() == ScreenCaptureQuery::kMostResults) {
            m_leftOut = true;
            return;
        }
        const bool isScreenshot =
            file.decided ||
            (++opened <= kMostOpened && isMarkedAsScreenshot(QFile::encodeName(file.capture.path)));
        if (isScreenshot && isComplete(file.capture))
            m_captures.append(file.capture);
    }
}

void CaptureList::update(const ScreenshotFolder &folder, const QByteArray &name, const ScreenshotNames &names)
{
    const QString path = folder.path + QLatin1Char('/') + QFile::decodeName(name);
    m_captures.removeIf([&](const ScreenCapture &capture) { return capture.path == path; });
    const auto file = candidate(folder, name, names);
    if (!file || !isComplete(file->capture) ||
        (!file->decided && !isMarkedAsScreenshot(QFile::encodeName(path))))
        return;
    m_captures.insert(std::ranges::lower_bound(m_captures, file->capture, isNewer), file->capture);
    if (m_captures.size() > ScreenCaptureQuery::kMostResults) {
        m_captures.removeLast();
        m_leftOut = true;
    }
}

} // namespace Kestrune
