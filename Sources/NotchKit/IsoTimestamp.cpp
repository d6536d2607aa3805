#include "IsoTimestamp.h"

#include <chrono>

namespace Kestrune {

namespace {

/// Takes a text apart from its front; once something did not fit, it stays failed.
class Reader
{
public:
    explicit Reader(std::string_view text)
        : m_text(text)
    {}

    /// A number of exactly `digits` digits, at most `largest`.
    int number(std::size_t digits, int largest)
    {
        int value = 0;
        for (std::size_t i = 0; i < digits; ++i)
            value = value * 10 + digit();
        m_failed = m_failed || value > largest;
        return value;
    }

    void expect(char wanted) { m_failed = m_failed || next() != wanted; }

    bool take(char wanted)
    {
        const bool found = !m_text.empty() && m_text.front() == wanted;
        if (found)
            m_text.remove_prefix(1);
        return found;
    }

    /// One digit or more after the point, as milliseconds.
    int fraction()
    {
        int value = digit() * 100;
        for (int scale = 10; nextIsDigit(); scale /= 10)
            value += digit() * scale;
        return value;
    }

    bool complete() const { return !m_failed && m_text.empty(); }

private:
    bool nextIsDigit() const { return !m_text.empty() && m_text.front() >= '0' && m_text.front() <= '9'; }

    int digit()
    {
        const bool isDigit = nextIsDigit();
        m_failed = m_failed || !isDigit;
        return isDigit ? next() - '0' : 0;
    }

    char next()
    {
        if (m_text.empty())
            return '\0';
        const char first = m_text.front();
        m_text.remove_prefix(1);
        return first;
    }

    std::string_view m_text;
    bool m_failed = false;
};

/// The zone's distance from UTC in minutes.
int readZone(Reader &reader)
{
    if (reader.take('Z'))
        return 0;
    const bool west = reader.take('-');
    if (!west)
        reader.expect('+');
    const int hours = reader.number(2, 23);
    reader.expect(':');
    const int minutes = hours * 60 + reader.number(2, 59);
    return west ? -minutes : minutes;
}

} // namespace

std::optional<qint64> parseIsoTimestamp(std::string_view text)
{
    using namespace std::chrono;
    Reader reader(text);
    const year y(reader.number(4, 9999));
    reader.expect('-');
    const month m(static_cast<unsigned>(reader.number(2, 12)));
    reader.expect('-');
    const std::chrono::day d(static_cast<unsigned>(reader.number(2, 31)));
    reader.expect('T');
    const hours hour(reader.number(2, 23));
    reader.expect(':');
    const minutes minute(reader.number(2, 59));
    reader.expect(':');
    const seconds second(reader.number(2, 59));
    reader.expect('.');
    const milliseconds fraction(reader.fraction());
    const minutes zone(readZone(reader));
    const year_month_day date(y, m, d);
    if (!reader.complete() || !date.ok())
        return std::nullopt;
    return (sys_days(date).time_since_epoch() + hour + minute + second + fraction - zone).count();
}

} // namespace Kestrune
