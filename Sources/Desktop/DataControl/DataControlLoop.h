#pragma once

#include "DataControlDevice.h"
#include "DataControlGlobals.h"
#include "DataControlSource.h"
#include "Desktop/Compositor/CompositorConnection.h"
#include "Desktop/Pasteboard/PasteboardLoop.h"
#include "PipeReader.h"

namespace Kestrune {

/// The pasteboard's thread on a connection of its own to the Wayland compositor.
class DataControlLoop : public PasteboardLoop
{
public:
    DataControlLoop(const QByteArray &display, PasteboardLink &link);
    ~DataControlLoop() override;
    Q_DISABLE_COPY_MOVE(DataControlLoop)

    void offer(const PasteboardContent &content) override;

private:
    enum class State { Starting, Watching, Failed };

    bool isAlive() const override { return m_state != State::Failed && m_connection.isAlive(); }
    bool handleEvents() override;
    bool isReadyToAsk() const override { return m_state == State::Watching && m_unsettled == 0 && !m_reader; }
    void sleep() override;
    void askForTargets(qsizetype limit, Done<QList<QByteArray>> done) override;
    void askForTarget(const QByteArray &target, qsizetype limit, Done<Form> done) override;

    void fail(const char *why);
    void watch();
    void put();
    void finished();
    void contentChanged();
    void confirm(const std::weak_ptr<PipeReader> &reader, int roundTrips);
    void expire();
    void finishReading();
    std::optional<Clock::time_point> deadline() const;

    const QByteArray m_mark; ///< A type by which copies of this object are known.
    State m_state = State::Starting;
    CompositorConnection m_connection;
    std::unique_ptr<DataControlGlobals> m_globals;
    PipeWriters m_writers;
    std::unique_ptr<DataControlDevice> m_device; ///< Null without a seat.
    std::unique_ptr<DataControlSource> m_source; ///< Null unless the content is ours.
    std::optional<PasteboardContent> m_waiting;  ///< To be offered when there is a clipboard.
    int m_unsettled = 0;                         ///< Copies of ours on their way to the clipboard.
    std::shared_ptr<PipeReader> m_reader;        ///< While an answer comes in.
    Done<QByteArray> m_done;                     ///< Of that answer.
};

} // namespace Kestrune
