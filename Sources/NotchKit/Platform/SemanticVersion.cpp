#include "SemanticVersion.h"

#include <QRegularExpression>

#include <algorithm>

namespace Kestrune {

namespace {

std::strong_ordering ordering(int difference) { return difference <=> 0; }

/// Numbers by their value and before words, words by their letters.
std::strong_ordering compareParts(const QString &a, const QString &b)
{
    bool aIsNumber = false;
    bool bIsNumber = false;
    const qulonglong aNumber = a.toULongLong(&aIsNumber);
    const qulonglong bNumber = b.toULongLong(&bIsNumber);
    if (aIsNumber && bIsNumber)
        return aNumber <=> bNumber;
    if (aIsNumber != bIsNumber)
        return aIsNumber ? std::strong_ordering::less : std::strong_ordering::greater;
    return ordering(QString::compare(a, b));
}

} // namespace

std::optional<SemanticVersion> SemanticVersion::parse(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A(\d{1,9}\.\d{1,9}\.\d{1,9})(?:-([0-9A-Za-z.-]+))?(?:\+[0-9A-Za-z.-]+)?\z)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    SemanticVersion version;
    version.m_numbers = QVersionNumber::fromString(match.captured(1));
    version.m_preRelease = match.captured(2).split(u'.', Qt::SkipEmptyParts);
    return version;
}

std::strong_ordering operator<=>(const SemanticVersion &a, const SemanticVersion &b)
{
    const auto numbers = ordering(QVersionNumber::compare(a.m_numbers, b.m_numbers));
    if (std::is_neq(numbers))
        return numbers;
    if (a.m_preRelease.isEmpty() || b.m_preRelease.isEmpty())
        return a.m_preRelease.isEmpty() <=> b.m_preRelease.isEmpty();
    const qsizetype common = std::min(a.m_preRelease.size(), b.m_preRelease.size());
    for (qsizetype i = 0; i < common; ++i) {
        const auto parts = compareParts(a.m_preRelease[i], b.m_preRelease[i]);
        if (std::is_neq(parts))
            return parts;
    }
    return a.m_preRelease.size() <=> b.m_preRelease.size();
}

} // namespace Kestrune
