#pragma once

#include "EndToEnd/Session.h"

#include <QDBusMessage>

#include <optional>

namespace Faults {

/// What a process holds.
struct Holdings
{
    qint64 memory = 0;      ///< PSS in kilobytes.
    qint64 ownMemory = 0;   ///< Of it what no file backs.
    qint64 descriptors = 0; ///< Open ones.
    qint64 threads = 0;
    QMap<QString, int> kinds; ///< Of the descriptors: what each leads to, without numbers.
    qint64 wakeUps = 0;       ///< Times that its main thread gave the processor up so far.

    static Holdings of(qint64 process);
};

/// The program in a session, spoken to over its bus: quicker than the commands, which are processes.
class Program
{
public:
    explicit Program(Session &session);

    /// Only starts it.
    bool launch();
    /// Starts it and waits until it answers.
    bool start() { return launch() && waitUntilServing(); }
    bool waitUntilServing();

    bool isRunning() const { return m_process && m_process->state() == QProcess::Running; }
    ChildProcess &process() { return *m_process; }
    qint64 id() const { return m_process->processId(); }
    Holdings holdings() const { return Holdings::of(id()); }

    /// Each waits for the answer. Nothing, or false, where none came.
    std::optional<QString> setting(const QString &key) const;
    bool set(const QString &key, const QString &value) const;
    bool open(const QString &tool) const { return ask(QStringLiteral("Open"), {tool}).has_value(); }
    bool close() const { return ask(QStringLiteral("Close")).has_value(); }
    QJsonObject status() const;

    /// A call to the program.
    static QDBusMessage call(const QString &method, const QVariantList &arguments = {});

    /// What it said on standard error since the last time, line by line.
    QStringList takeWords();

private:
    std::optional<QVariantList> ask(const QString &method, const QVariantList &arguments = {}) const;

    Session &m_session;
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace Faults
