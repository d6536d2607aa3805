#pragma once

#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <compare>
#include <optional>

namespace Kestrune {

/// A version such as "1.4.0" or "1.4.0-beta.2", ordered as semver.org 2.0.0 says (clause 11). What follows a
/// "+" does not count.
class SemanticVersion
{
public:
    /// Nothing for a text that is no version: three numbers, then perhaps a pre-release.
    static std::optional<SemanticVersion> parse(const QString &text);

    friend std::strong_ordering operator<=>(const SemanticVersion &a, const SemanticVersion &b);
    friend bool operator==(const SemanticVersion &a, const SemanticVersion &b) { return std::is_eq(a <=> b); }

private:
    QVersionNumber m_numbers;
    QStringList m_preRelease; ///< Its parts; a version without one comes after all that have one.
};

} // namespace Kestrune
