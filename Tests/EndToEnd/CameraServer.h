#pragma once

#include "EndToEnd/ChildProcess.h"

#include <QJsonArray>

#include <memory>

/// PipeWire with one camera, whose picture has coloured bars: light grey at its left, blue at its right.
struct CameraServer
{
    /// In the folders that `environment` names.
    explicit CameraServer(const QProcessEnvironment &environment)
        : m_environment(environment)
    {}

    /// Starts it anew and waits until programs find the camera.
    bool plugIn();

    /// Takes the camera away; where that is more than PipeWire bears, the server as well.
    bool pullOut();

    /// Lets the server, or what manages its sessions, answer no more, until it is started anew.
    bool hang(bool manager);

    /// As PipeWire sees the camera from outside: "running" while a program uses it. Empty without one.
    QString state() const { return camera("state"); }

private:
    /// Whether the manager is there, which gives programs the camera that they ask for.
    bool isManaged() const;
    /// All that the server has; nothing when it does not answer.
    QJsonArray dump() const;
    QString camera(const char *field) const;
    QByteArray run(const QString &program, const QStringList &arguments) const;

    QProcessEnvironment m_environment;
    std::unique_ptr<ChildProcess> m_server;
    std::unique_ptr<ChildProcess> m_manager;
};
