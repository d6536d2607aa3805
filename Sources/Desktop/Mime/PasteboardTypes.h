#pragma once

#include "NotchKit/Platform/Pasteboard.h"

#include <utility>

namespace Kestrune::PasteboardTypes {

/// One form in which content is offered to other programs.
struct Form
{
    QByteArray target;
    QByteArray type; ///< Of the answer to that target.
    QByteArray data;
    std::function<QByteArray()> make = {}; ///< Makes the data, once; empty when it was made or given at once.
    bool isMissing = false;                ///< It could not be made.

    /// Whether the data is there now.
    bool prepare()
    {
        if (make) {
            data = std::exchange(make, {})();
            isMissing = data.isEmpty();
        }
        return !isMissing;
    }
};

/// The pasteboard's names for what an owner offers, each once. The targets of the protocol itself, which
/// describe no content, are left out.
QStringList named(const QList<QByteArray> &targets);

/// The targets to ask for, the best one first.
const QList<QByteArray> &textTargets();
const QList<QByteArray> &fileTargets();
const QList<QByteArray> &pictureTargets();
const QList<QByteArray> &htmlTargets();

/// The text in an answer of that type; none when it is not text. Terminators at the end are dropped.
std::optional<QString> text(QByteArrayView data, const QByteArray &type);

/// Every form in which the content is offered, the best one first.
QList<Form> forms(const PasteboardContent &content);

} // namespace Kestrune::PasteboardTypes
