#pragma once

#include "Desktop/Defaults/SqliteDatabase.h"
#include "NotchKit/Platform/UserDefaults.h"

#include <map>
#include <optional>

namespace Kestrune {

/// A value as its row holds it: the name of its type and the content.
struct StoredValue
{
    SqliteValue type;
    SqliteValue content;
    bool operator==(const StoredValue &) const = default;
};

/// New values by key; nothing stands for a removal.
using Changes = std::map<QString, std::optional<StoredValue>>;

/// Every value has a row that decodes to it again exactly; only a NaN loses its sign and payload.
StoredValue encode(const DefaultsValue &value);

/// Nothing when the type is unknown or the content is not of the type.
std::optional<DefaultsValue> decode(const StoredValue &stored);

/// A string as a column: readable UTF-8 where that can hold it, otherwise the bytes of its UTF-16.
SqliteValue encodeString(const QString &string);
std::optional<QString> decodeString(const SqliteValue &column);

} // namespace Kestrune
