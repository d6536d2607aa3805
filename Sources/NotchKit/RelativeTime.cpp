#include "RelativeTime.h"

#include <algorithm>
#include <array>
#include <optional>

#include <unicode/reldatefmt.h>

namespace Kestrune {

namespace {

struct Unit
{
    qint64 seconds;
    URelativeDateTimeUnit unit;
};

// Months and years at their mean length.
constexpr std::array kUnits{
    Unit{31'556'952, UDAT_REL_UNIT_YEAR}, Unit{2'629'746, UDAT_REL_UNIT_MONTH},
    Unit{604'800, UDAT_REL_UNIT_WEEK},    Unit{86'400, UDAT_REL_UNIT_DAY},
    Unit{3600, UDAT_REL_UNIT_HOUR},       Unit{60, UDAT_REL_UNIT_MINUTE},
    Unit{1, UDAT_REL_UNIT_SECOND},
};

class Formatter
{
public:
    explicit Formatter(const QString &language)
        : m_language(language)
        , m_formatter(icu::Locale((language + QStringLiteral("@numbers=latn")).toLatin1().constData()),
                      nullptr, UDAT_STYLE_NARROW, UDISPCTX_CAPITALIZATION_NONE, m_status)
    {}

    const QString &language() const { return m_language; }

    QString past(qint64 amount, URelativeDateTimeUnit unit) const
    {
        UErrorCode status = m_status;
        icu::UnicodeString text;
        // The sign of zero tells past from future too.
        m_formatter.formatNumeric(-static_cast<double>(amount), unit, text, status);
        return QString::fromUtf16(text.getBuffer(), text.length());
    }

private:
    QString m_language;
    UErrorCode m_status = U_ZERO_ERROR;
    icu::RelativeDateTimeFormatter m_formatter;
};

const Formatter &formatter(const QString &language)
{
    thread_local std::optional<Formatter> kept;
    if (!kept || kept->language() != language)
        kept.emplace(language);
    return *kept;
}

} // namespace

QString relativeTime(const QDateTime &date, const QDateTime &now, const QString &language)
{
    const qint64 seconds = std::max<qint64>(date.secsTo(now), 0);
    const auto *unit = std::ranges::find_if(kUnits, [&](const Unit &candidate) {
        return seconds >= candidate.seconds || candidate.seconds == 1;
    });
    return formatter(language).past(seconds / unit->seconds, unit->unit);
}

} // namespace Kestrune
