#pragma once

#include <QString>
#include <QStringList>

namespace Kestrune {

/// The text for `english` in the user's language, or `english` itself where it has no translation.
/// The language is chosen once, on first use, from the user's preference order, and kept.
/// A `number` from 0 on chooses the plural form and is put in the place of "%n" (of "%Ln" in
/// the locale's digits).
QString notchStrings(const char *english, int number = -1);

/// The language that notchStrings speaks, a BCP 47 tag.
QString notchLanguage();

/// The languages that the program speaks, BCP 47 tags; English is the first.
QStringList availableLocalizations();

/// The first of the user's `preferences` (BCP 47 tags, best first) that one of the `available`
/// translations serves; "en" when none does. "de-AT" is served by "de", "pt" by
/// "pt-BR", but "zh-TW", which is written in another script, is not served by "zh-CN".
QString chooseLocalization(const QStringList &available, const QStringList &preferences);

/// The program's own name for use in messages; the last fallback is "this app".
QString hostName();

} // namespace Kestrune
