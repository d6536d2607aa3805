#pragma once

#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "EndToEnd/PrivateBus.h"

#include <QJsonObject>
#include <QTemporaryDir>

#include <memory>

/// A user's session: an empty home, a private session bus, and the program in it.
struct Session
{
    /// How a command ended and what it said.
    struct Result
    {
        int status = -1;
        QString output;
        QString errors;
    };

    Session();
    ~Session();

    /// What every process of the session gets; the display adds itself.
    QProcessEnvironment &environment() { return m_environment; }
    QDBusConnection bus() const { return m_bus->connection(); }
    static QString busName() { return QStringLiteral("example.kestrune.Kestrune"); }

    /// Sets or reads a Boolean in the user defaults of a domain, as another program would.
    void setFlag(const QString &domain, const QString &key, bool value);
    bool flag(const QString &domain, const QString &key) const;

    /// Data that the program keeps in its own defaults.
    QByteArray data(const QString &key) const;

    /// The program of this build, or the one that KESTRUNE_PROGRAM names, such as an installed one.
    static QString executable();

    /// Has another copy of the program started, and asked by the commands.
    void setExecutable(const QString &file) { m_executable = file; }

    /// Has the program started by another, which gets its file and arguments behind its own.
    void setLauncher(const QStringList &launcher) { m_launcher = launcher; }

    /// Starts the program and waits until it answers on the bus.
    bool start(const QStringList &arguments = {});
    bool isRunning() const { return m_program && m_program->state() == QProcess::Running; }
    ChildProcess &program() { return *m_program; }
    void endProgram() { m_program.reset(); }

    /// Runs the program as a command and waits for its end.
    Result command(const QStringList &arguments) const;
    bool set(const QString &setting, const QString &value) const;
    QString setting(const QString &name) const;

    QJsonObject status() const;
    QJsonArray displays() const;
    QJsonObject display(int index = 0) const;
    bool isOpen(int index = 0) const;
    bool hasActivity() const { return status().value(QLatin1String("hasActivity")).toBool(); }
    QString selected(int index = 0) const;
    /// The texts of the clipboard history.
    QStringList copiedTexts() const;
    /// Copies with xclip, which keeps the clipboard in the background.
    void copy(const QString &type, const QByteArray &bytes) const;

    QStringList tools() const; ///< Those in the tool row, in its order.

    /// What the program itself fills, in kilobytes: without the files that it maps, whose share depends on
    /// what else runs.
    qint64 ownMemory() const;

private:
    QString defaultsFile(const QString &domain) const;
    Kestrune::SqliteUserDefaults read(const QString &domain) const;

    QTemporaryDir m_home;
    QString m_executable = executable();
    QStringList m_launcher;
    QProcessEnvironment m_environment;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<ChildProcess> m_program;
};
