#pragma once

#include <QByteArray>
#include <QFuture>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

namespace Kestrune {

/// A picture as its owner encoded it.
struct EncodedPicture
{
    QByteArray data;
    QString type; ///< Pasteboard::kPng or Pasteboard::kTiff, or the type of the file that it came from.

    bool operator==(const EncodedPicture &) const = default;
};

/// A picture in one encoding, which may have to be made first.
struct OfferedPicture
{
    QString type;
    /// Called when the first program asks for it, on the pasteboard's thread, and once; may take seconds.
    /// Empty bytes: there is none after all.
    std::function<QByteArray()> data;
};

/// What one write puts on the pasteboard: the same copy in every form that it has.
struct PasteboardContent
{
    PasteboardContent() = default;
    // NOLINTBEGIN(google-explicit-constructor): of one form alone.
    PasteboardContent(const QString &string)
        : text(string)
    {}
    PasteboardContent(const QList<QUrl> &urls)
        : files(urls)
    {}
    PasteboardContent(const EncodedPicture &picture)
        : pictures{{picture.type, [data = picture.data] { return data; }}}
    {}
    // NOLINTEND(google-explicit-constructor)

    bool isEmpty() const { return !text && html.isEmpty() && files.isEmpty() && pictures.isEmpty(); }

    std::optional<QString> text; ///< Of files without one, their paths are offered.
    QByteArray html;             ///< In the encoding that its first owner gave it.
    QList<QUrl> files;
    QList<OfferedPicture> pictures; ///< One picture in several encodings, as it came first.
};

/// The general pasteboard: what the user copied last.
///
/// Called on the main thread; nothing here blocks. A question is answered by a future that always finishes
/// with a result: an owner that does not answer in time, dies, offers more than the limit or loses the
/// pasteboard meanwhile gives the empty answer. Ask from one reader at a time.
class Pasteboard : public QObject
{
    Q_OBJECT

public:
    static constexpr auto kFileUrls = "text/uri-list";
    static constexpr auto kPng = "image/png";
    static constexpr auto kTiff = "image/tiff";
    static constexpr auto kString = "text/plain";
    static constexpr auto kHtml = "text/html";
    static constexpr auto kConcealed = "org.nspasteboard.ConcealedType";

    /// Moves with every new copy, whoever made it; never otherwise. Costs nothing to ask.
    virtual qint64 changeCount() const = 0;

    /// The program whose copy was the last has ended without taking it back, and with it what was copied is
    /// gone. Costs nothing to ask; false where the desktop does not tell.
    virtual bool isOrphaned() const = 0;

    /// The types of the current content: the four above under those names whatever the owner calls them,
    /// kConcealed where the owner gives the desktop's password-manager hint, and every other type under the
    /// owner's own name. No content is asked for. Empty when there is none.
    virtual QFuture<QStringList> types() = 0;

    /// The content whose types were asked for last, in one of its forms; empty once another has taken its
    /// place, so that nothing is read whose types were not seen. Only file URLs are given, in their order.
    virtual QFuture<QList<QUrl>> fileUrls() = 0;
    virtual QFuture<std::optional<EncodedPicture>> picture() = 0;
    virtual QFuture<std::optional<QString>> string() = 0;
    virtual QFuture<QByteArray> html() = 0;

    /// The names of the program whose content that is: the classes of its windows. Empty where the desktop
    /// does not tell.
    virtual QFuture<QStringList> owners() = 0;

    /// Replaces the content and returns the change count that this write gave. Files are also offered in
    /// the form that file managers paste.
    virtual qint64 write(const PasteboardContent &content) = 0;

Q_SIGNALS:
    /// Another program has copied something, or what was copied has become an orphan. Once for several that
    /// come close together.
    void changed();
};

} // namespace Kestrune
