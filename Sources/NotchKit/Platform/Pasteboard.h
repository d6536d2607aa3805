#pragma once

#include <QByteArray>
#include <QFuture>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>
#include <variant>

namespace Kestrune {

/// A picture as its owner encoded it.
struct EncodedPicture
{
    QByteArray data;
    QString type; ///< Pasteboard::kPng or Pasteboard::kTiff, or the type of the file that it came from.

    bool operator==(const EncodedPicture &) const = default;
};

/// What one write puts on the pasteboard.
using PasteboardContent = std::variant<QString, QList<QUrl>, EncodedPicture>;

/// The general pasteboard: what the user copied last.
///
/// Called on the main thread; nothing here blocks. A question is answered by a future that always finishes
/// with a result: an owner that does not answer in time, dies, offers more than the limit or loses the
/// pasteboard meanwhile gives the empty answer. Ask from one reader at a time.
class Pasteboard
{
public:
    static constexpr auto kFileUrls = "text/uri-list";
    static constexpr auto kPng = "image/png";
    static constexpr auto kTiff = "image/tiff";
    static constexpr auto kString = "text/plain";
    static constexpr auto kConcealed = "org.nspasteboard.ConcealedType";

    virtual ~Pasteboard() = default;

    /// Moves with every new copy, whoever made it; never otherwise. Costs nothing to ask.
    virtual qint64 changeCount() const = 0;

    /// The types of the current content: the four above under those names whatever the owner calls them,
    /// kConcealed where the owner gives the desktop's password-manager hint, and every other type under the
    /// owner's own name. No content is asked for. Empty when there is none.
    virtual QFuture<QStringList> types() = 0;

    /// The content whose types were asked for last, in one of its forms; empty once another has taken its
    /// place, so that nothing is read whose types were not seen. Only file URLs are given, in their order.
    virtual QFuture<QList<QUrl>> fileUrls() = 0;
    virtual QFuture<std::optional<EncodedPicture>> picture() = 0;
    virtual QFuture<std::optional<QString>> string() = 0;

    /// Replaces the content and returns the change count that this write gave. Files are also offered in
    /// the form that file managers paste.
    virtual qint64 write(const PasteboardContent &content) = 0;
};

} // namespace Kestrune
