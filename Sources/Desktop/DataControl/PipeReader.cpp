#include "PipeReader.h"

#include <array>
#include <cerrno>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr qsizetype kPiece = qsizetype{64} * 1024; // What a pipe holds.
// The pipes of a program that dies are closed shortly before its connection to the compositor.
constexpr auto kMostBetween = 100ms;

} // namespace

PipeReader::PipeReader(Descriptor pipe, qsizetype limit)
    : m_pipe(std::move(pipe))
    , m_limit(limit)
{
    if (m_pipe.get() < 0)
        end(State::Failed);
}

void PipeReader::read()
{
    std::array<char, kPiece> piece; // NOLINT(cppcoreguidelines-pro-type-member-init)
    const auto got = ::read(m_pipe.get(), piece.data(), piece.size());
    if (got == 0) {
        end(State::Ended);
        m_patience.progress();
        m_askFrom = Clock::now() + kMostBetween;
    } else if (got < 0) {
        if (errno != EAGAIN && errno != EINTR)
            end(State::Failed);
    } else if (m_answer.size() + got > m_limit) {
        end(State::Failed);
    } else {
        m_answer.append(piece.data(), got);
        m_patience.progress();
    }
}

bool PipeReader::wantsConfirmation(Clock::time_point now)
{
    if (m_state != State::Ended || (now < m_askFrom && !m_patience.isHurried()))
        return false;
    m_state = State::Asked;
    return true;
}

PipeReader::Clock::time_point PipeReader::deadline() const
{
    return m_state == State::Ended ? m_askFrom : m_patience.deadline();
}

void PipeReader::confirm()
{
    // An owner that was overtaken before it was asked gives nothing, which is no empty answer.
    if (m_state == State::Asked)
        end(m_patience.isHurried() && m_answer.isEmpty() ? State::Failed : State::Complete);
}

void PipeReader::overtaken(bool gone)
{
    if (gone && !m_patience.isHurried())
        end(State::Failed);
    else
        m_patience.hurry();
}

void PipeReader::expire(Clock::time_point now)
{
    if (!isFinished() && now >= m_patience.deadline())
        end(State::Failed);
}

std::optional<QByteArray> PipeReader::take()
{
    if (m_state != State::Complete)
        return std::nullopt;
    m_answer.squeeze();
    return std::move(m_answer);
}

void PipeReader::end(State state)
{
    m_state = state;
    m_pipe.close();
}

} // namespace Kestrune
