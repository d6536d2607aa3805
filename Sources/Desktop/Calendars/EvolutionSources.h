#pragma once

#include <QColor>
#include <QList>
#include <QString>

namespace Kestrune {

/// A calendar or a task list of Evolution Data Server.
struct EvolutionSource
{
    QString uid;
    bool isTaskList = false;
    QColor color; ///< Invalid without one.
    QString name; ///< In the user's language, where it has one in that.
};

/// One source's key file as the registry gives it.
struct EvolutionKeyFile
{
    QString uid;
    QString text;
};

/// The calendars and task lists among them that are enabled, their parents too, and not hidden by the user.
QList<EvolutionSource> enabledSources(const QList<EvolutionKeyFile> &files);

} // namespace Kestrune
