#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace Kestrune {

class ControlService;

/// Holds the program's name on the session bus, so that a second start finds the first.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        first,  ///< The name is this process's.
        second, ///< Another process has it.
        noBus,  ///< There is no bus, or it does not answer.
    };

    /// `service` outlives the object.
    SingleInstance(const QDBusConnection &bus, ControlService &service, QObject *parent = nullptr);

    /// Puts the service on the bus, so that whoever meets the name meets it, too, and asks for the name
    /// without waiting; `done` is called once.
    void claim(std::function<void(Outcome)> done);

    /// Gives the name up: the next start is a first one. Waits for nothing.
    void release();

    /// Hands a start's request to the first process; `done` is called with whether it has taken
    /// it, which it does within seconds unless it hangs.
    void handOver(const QString &tool, std::function<void(bool)> done);

private:
    QDBusConnection m_bus;
    ControlService &m_service;
};

} // namespace Kestrune
