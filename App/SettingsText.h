#pragma once

#include "NotchKit/Platform/UserDefaults.h"

#include <QString>

#include <optional>

namespace Kestrune::SettingsText {

/// A stored value as the command line prints it: lists and maps as compact JSON, nothing as "".
QString format(const std::optional<DefaultsValue> &value);

/// `text` as a value of the same type as `example`; nothing when it does not read as one. Booleans are
/// true or false, lists and maps JSON, strings the text itself.
std::optional<DefaultsValue> parse(const QString &text, const DefaultsValue &example);

/// What `parse` expects, in words: "a number", "true or false".
QString expectation(const DefaultsValue &example);

} // namespace Kestrune::SettingsText
