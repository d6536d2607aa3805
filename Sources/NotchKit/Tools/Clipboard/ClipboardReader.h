#pragma once

#include "Async/Scope.h"
#include "Async/Worker.h"
#include "ClipboardItem.h"

#include <memory>

namespace Kestrune {

class PictureReader;

/// Where the slow steps are made, and what reads pictures there.
struct ClipboardWorkers
{
    std::shared_ptr<PictureReader> pictures;
    Worker contents{"clipboard"}; ///< Of what is in memory.
    Worker files{"copied-files"}; ///< What looks into files, which may hang.
};

/// Turns the pasteboard's content into an item: files first, then a picture without a text beside it, then
/// text. A picture's file that does not answer in time is without its picture. Nothing for content that is
/// marked as secret, passing or generated or that comes from an ignored program, which is not even asked for,
/// and for content without any of the three. `ignored` are parts of programs' names, in either case. The
/// item's date is left to the caller. Main thread, in a flow that the first two outlive.
QCoro::Task<std::optional<ClipboardItem>> readPasteboard(Pasteboard &pasteboard, ClipboardWorkers &workers,
                                                         QStringList ignored);

/// The item of a copied text, or nothing for blanks. It shows the text's first 4,000 characters, a link
/// whole, and of neither more than 80,000 code units: a longer link is a text. The text as it came is its
/// original. Any thread.
std::optional<ClipboardItem> clipboardItemOfText(const QString &text);

} // namespace Kestrune
