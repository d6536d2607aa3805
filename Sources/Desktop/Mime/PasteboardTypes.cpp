#include "PasteboardTypes.h"

#include "UriLists.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace Kestrune::PasteboardTypes {

namespace {

constexpr auto kUtf8String = "UTF8_STRING";
constexpr auto kUtf8Text = "text/plain;charset=utf-8";
constexpr auto kLatin1 = "STRING";
constexpr auto kAnyText = "TEXT";
constexpr auto kPasswordHint = "x-kde-passwordManagerHint";

bool isProtocol(const QByteArray &target)
{
    static const QList<QByteArray> targets{"TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS"};
    return target.isEmpty() || targets.contains(target);
}

QString name(const QByteArray &target)
{
    if (textTargets().contains(target) || target == "COMPOUND_TEXT")
        return QString::fromLatin1(Pasteboard::kString);
    if (fileTargets().contains(target))
        return QString::fromLatin1(Pasteboard::kFileUrls);
    if (target == kPasswordHint)
        return QString::fromLatin1(Pasteboard::kConcealed);
    return QString::fromLatin1(target);
}

QList<Form> textForms(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    QList<Form> forms{{kUtf8String, kUtf8String, utf8},
                      {kUtf8Text, kUtf8Text, utf8},
                      {Pasteboard::kString, Pasteboard::kString, utf8},
                      {kAnyText, kUtf8String, utf8}};
    QStringEncoder encoder(QStringEncoder::Latin1);
    if (const QByteArray latin1 = encoder.encode(text); !encoder.hasError())
        forms.append({kLatin1, kLatin1, latin1});
    return forms;
}

QList<Form> fileForms(const QList<QUrl> &urls)
{
    QList<Form> forms{{Pasteboard::kFileUrls, Pasteboard::kFileUrls, UriLists::uriList(urls)},
                      {UriLists::kCopiedFiles, UriLists::kCopiedFiles, UriLists::copiedFiles(urls)}};
    return forms;
}

QList<Form> pictureForms(const QList<OfferedPicture> &pictures)
{
    QList<Form> forms;
    for (const OfferedPicture &picture : pictures) {
        const QByteArray type = picture.type.toLatin1();
        forms.append({type, type, {}, picture.data});
    }
    return forms;
}

} // namespace

QStringList named(const QList<QByteArray> &targets)
{
    QStringList names;
    for (const QByteArray &target : targets) {
        if (!isProtocol(target))
            names.append(name(target));
    }
    names.removeDuplicates();
    return names;
}

const QList<QByteArray> &textTargets()
{
    static const QList<QByteArray> targets{kUtf8String, kUtf8Text, Pasteboard::kString, kLatin1, kAnyText};
    return targets;
}

const QList<QByteArray> &fileTargets()
{
    static const QList<QByteArray> targets{Pasteboard::kFileUrls, UriLists::kCopiedFiles};
    return targets;
}

const QList<QByteArray> &pictureTargets()
{
    static const QList<QByteArray> targets{Pasteboard::kPng, Pasteboard::kTiff};
    return targets;
}

const QList<QByteArray> &htmlTargets()
{
    static const QList<QByteArray> targets{Pasteboard::kHtml};
    return targets;
}

std::optional<QString> text(QByteArrayView data, const QByteArray &type)
{
    while (data.endsWith('\0'))
        data.chop(1);
    if (type == kLatin1)
        return QString::fromLatin1(data);
    if (type != kUtf8String && type != kUtf8Text && type != Pasteboard::kString)
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(data);
    // Without a declared encoding, bytes that are no UTF-8 are most likely Latin-1.
    return type == Pasteboard::kString && decoder.hasError() ? QString::fromLatin1(data) : decoded;
}

QList<Form> forms(const PasteboardContent &content)
{
    QList<Form> forms = pictureForms(content.pictures);
    if (!content.files.isEmpty())
        forms += fileForms(content.files);
    if (content.text)
        forms += textForms(*content.text);
    else if (!content.files.isEmpty())
        forms += textForms(UriLists::paths(content.files)); // Terminals paste the paths.
    if (!content.html.isEmpty())
        forms.append({Pasteboard::kHtml, Pasteboard::kHtml, content.html});
    return forms;
}

} // namespace Kestrune::PasteboardTypes
