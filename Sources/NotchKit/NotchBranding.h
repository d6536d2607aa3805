#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace Kestrune {

/// Under which name the notch presents itself and which credit it shows.
struct NotchBranding
{
    QString name;                       ///< The product name shown to the user.
    std::optional<QString> creditTitle; ///< The credit line; nothing means no credit is shown.
    std::optional<QUrl> creditURL;      ///< Where the credit line leads; nothing means it is no link.

    /// This program as a member of the companion suite: the one the application uses.
    static const NotchBranding &fennivar();

    /// The suite's own name and no credit.
    static const NotchBranding &none();

    /// The suite's bundle identifier: its session-bus name and the name of its defaults domain.
    static QString suiteIdentifier();
};

} // namespace Kestrune
