#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Kestrune {

/// A program in which pictures are edited.
struct PictureEditor
{
    QString entry;   ///< The name of its desktop entry.
    QString command; ///< As the entry's Exec key has it.

    /// The program and its arguments for the file at that path; empty where the command makes no sense.
    QStringList commandFor(const QString &path) const;
};

/// The installed editor for PNG pictures: the one that the user prefers to others for them, else one that is
/// made for notes on screenshots, else any. Viewers are none. Reads the desktop entries of `folders`, the
/// likeliest first, and `associations` (mimeapps.list); any thread. Format: Desktop Entry Specification 1.5,
/// MIME applications 1.0.
std::optional<PictureEditor> findPictureEditor(const QStringList &folders, const QStringList &associations);

/// The same for where this user's session keeps them.
std::optional<PictureEditor> findPictureEditor();

} // namespace Kestrune
