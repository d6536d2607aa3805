#include "DataControlLoop.h"

#include "Desktop/Pasteboard/Log.h"

#include <QUuid>

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kMarks = "application/x-kestrune-copy-";
constexpr auto kMostSilence = 10s; // Of the compositor.

/// The type of an answer, which nobody names here: two of the old text types leave the encoding open.
QByteArray typeOf(const QByteArray &target)
{
    return target == "STRING" || target == "TEXT" ? QByteArray(Pasteboard::kString) : target;
}

} // namespace

DataControlLoop::DataControlLoop(const QByteArray &display, PasteboardLink &link)
    : PasteboardLoop(link)
    , m_mark(kMarks + QUuid::createUuid().toByteArray(QUuid::WithoutBraces))
    , m_connection(display)
{
    if (!m_connection.isAlive()) {
        fail("there is no compositor");
        return;
    }
    m_globals = std::make_unique<DataControlGlobals>(m_connection.get());
    m_connection.whenCarriedOut([this] {
        if (m_globals->hasManager())
            watch();
        else
            fail("the compositor has no data control");
    });
}

DataControlLoop::~DataControlLoop()
{
    m_connection.dispatch(); // What was read and is not handed over is never freed.
}

void DataControlLoop::fail(const char *why)
{
    m_state = State::Failed;
    qCWarning(clipboardLog, "no clipboard: %s", why);
}

void DataControlLoop::watch()
{
    m_state = State::Starting;
    if (auto *const device = m_globals->takeDevice())
        m_device = std::make_unique<DataControlDevice>(device, [this] { contentChanged(); });
    // What comes until then was there before.
    m_connection.whenCarriedOut([this] { m_state = State::Watching; });
    if (m_waiting)
        put();
}

void DataControlLoop::contentChanged()
{
    const DataControlOffer *const content = m_device->content();
    if (m_reader)
        m_reader->overtaken(!content);
    const bool isOurs = content && content->has(m_mark);
    const bool isCopy = content && !isOurs && m_state == State::Watching;
    contentReplaced(isCopy ? Change::copied : content ? Change::ours : Change::gone);
}

bool DataControlLoop::handleEvents()
{
    const bool hadEvents = m_connection.dispatch();
    if (m_source && m_source->isCancelled())
        m_source.reset();
    if (m_device && m_device->isFinished())
        finished();
    if (!m_device && m_state == State::Watching && m_globals->hasSeat())
        watch();
    finishReading();
    expire();
    return hadEvents;
}

void DataControlLoop::finished()
{
    m_device.reset();
    m_source.reset();
    if (m_reader)
        m_reader->overtaken(true);
    contentReplaced(Change::gone);
}

void DataControlLoop::expire()
{
    const auto now = Clock::now();
    const auto since = m_connection.waitingSince();
    if (since && now >= *since + kMostSilence)
        fail("the compositor does not answer");
    m_writers.expire(now);
    if (m_reader)
        m_reader->expire(now);
    // A death that the compositor can know of is handled by the second time that it looks around.
    if (m_reader && m_reader->wantsConfirmation(now))
        confirm(m_reader, 2);
    finishReading();
}

std::optional<DataControlLoop::Clock::time_point> DataControlLoop::deadline() const
{
    auto next = m_writers.deadline();
    const auto include = [&next](Clock::time_point time) { next = next ? std::min(*next, time) : time; };
    if (m_reader)
        include(m_reader->deadline());
    if (const auto since = m_connection.waitingSince())
        include(*since + kMostSilence);
    return next;
}

void DataControlLoop::sleep()
{
    std::vector<pollfd> polled{{commandDescriptor(), POLLIN, 0},
                               {m_reader ? m_reader->descriptor() : -1, POLLIN, 0}};
    const size_t others = polled.size();
    m_writers.addTo(polled);
    m_connection.sleep(polled, timeoutUntil(deadline()));
    m_writers.write(std::span(polled).subspan(others));
    if (polled[1].revents != 0)
        m_reader->read();
}

void DataControlLoop::confirm(const std::weak_ptr<PipeReader> &reader, int roundTrips)
{
    m_connection.whenCarriedOut([this, reader, roundTrips] {
        if (const auto asked = reader.lock(); asked && roundTrips == 1)
            asked->confirm();
        else if (asked)
            confirm(reader, roundTrips - 1);
    });
}

void DataControlLoop::finishReading()
{
    if (!m_reader || !m_reader->isFinished())
        return;
    const auto answer = m_reader->take();
    m_reader.reset();
    const auto done = std::exchange(m_done, {});
    if (answer)
        done(*answer);
    else
        qCInfo(clipboardLog, "the owner gave nothing, too much or too late");
}

void DataControlLoop::offer(const PasteboardContent &content)
{
    m_waiting = content;
    if (m_device)
        put();
}

void DataControlLoop::put()
{
    if (!m_device)
        return;
    auto forms = PasteboardTypes::forms(*std::exchange(m_waiting, std::nullopt));
    forms.append({m_mark, m_mark, {}});
    auto source = std::make_unique<DataControlSource>(m_globals->makeSource(), forms, m_writers);
    m_device->put(source->get());
    m_source = std::move(source);
    // Questions that come after a write are about what was written.
    ++m_unsettled;
    m_connection.whenCarriedOut([this] { --m_unsettled; });
}

void DataControlLoop::askForTargets(qsizetype limit, Done<QList<QByteArray>> done)
{
    if (!m_device || !m_device->content())
        return;
    auto targets = m_device->content()->types(limit);
    targets.removeIf([](const QByteArray &target) { return target.startsWith(kMarks); });
    done(targets);
}

void DataControlLoop::askForTarget(const QByteArray &target, qsizetype limit, Done<Form> done)
{
    m_reader = std::make_shared<PipeReader>(m_device->content()->receive(target), limit);
    m_done = [target, done = std::move(done)](const QByteArray &data) {
        done({target, typeOf(target), data});
    };
}

} // namespace Kestrune
