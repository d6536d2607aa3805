#pragma once

#include "ClipboardItem.h"

#include <QCoroTask>

namespace Kestrune {

/// Turns the pasteboard's content into an item: files first, then a picture without a text beside it, then
/// text. Nothing for content that is marked as secret, passing or generated, which is not even asked for, and
/// for content without any of the three. The item's date is left to the caller. Main thread; the slow steps
/// run on others. `pasteboard` must outlive the task.
QCoro::Task<std::optional<ClipboardItem>> readPasteboard(Pasteboard &pasteboard);

/// The item of a copied text, or nothing for blanks. Any thread.
std::optional<ClipboardItem> clipboardItemOfText(const QString &text);

} // namespace Kestrune
