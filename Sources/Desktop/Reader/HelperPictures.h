#pragma once

#include "NotchKit/Platform/PictureReader.h"
#include "ReaderWire.h"

#include <QString>

#include <memory>
#include <mutex>
#include <optional>

namespace Kestrune {

class ReaderProcess;

/// Pictures read by a process of ours that can do nothing else. What ends it, or takes it too long, is no
/// picture; the next one is read by a new one.
class HelperPictures : public PictureReader
{
public:
    explicit HelperPictures(const QString &helper = installedHelper());
    ~HelperPictures() override;

    /// The one that came with this program, beside it or among its files; empty when there is none.
    static QString installedHelper();

    ReadPicture read(const QByteArray &encoded, const PictureWish &wish) override;
    ReadPicture readFile(int descriptor, const PictureWish &wish) override;

private:
    std::optional<ReaderWire::Answer> ask(const ReaderWire::Question &question, int file, int memory);
    std::unique_ptr<ReaderProcess> takeIdle();

    const QByteArray m_helper;
    std::mutex m_mutex;
    std::unique_ptr<ReaderProcess> m_idle; ///< One is kept for the next picture.
};

} // namespace Kestrune
