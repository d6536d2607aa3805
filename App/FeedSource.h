#pragma once

#include <QByteArray>
#include <QUrl>

namespace Kestrune {

/// Where a program's updates come from, and who signs them; empty where somebody else replaces the program.
struct FeedSource
{
    QUrl address;
    QByteArray key;        ///< Its public half, base64, as the next.
    QByteArray offlineKey; ///< Signs what replaces the other one.

    /// That of this program, which is a part of it: each program is linked with one definition of its own.
    static FeedSource ofProgram();
};

} // namespace Kestrune
