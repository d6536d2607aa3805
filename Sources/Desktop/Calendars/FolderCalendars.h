#pragma once

#include "CalendarSource.h"
#include "IcalReader.h"

#include <QFileInfo>
#include <QMap>

namespace Kestrune {

/// Calendars as folders of iCalendar files, as vdirsyncer, khal and todoman keep them: a folder a calendar
/// with a file an item, its colour in the file `color`. A file is read again only when it has changed.
class FolderCalendars : public CalendarSource
{
public:
    /// `root` holds the calendars, up to two folders deep.
    explicit FolderCalendars(const QString &root)
        : m_root(root)
    {}

    /// The folder that `chosen` names ("~" is the user's home); where it is empty, the first of the usual
    /// ones that is there.
    static QString rootFor(const QString &chosen);

    CalendarAccess access() override;
    bool requestAccess() override;
    std::optional<CalendarStore::Events> events(const IcalRange &range) override;
    std::optional<CalendarStore::Tasks> openTasks() override;
    bool complete(const IcalTaskId &task) override;

private:
    /// What is known of one file.
    struct File
    {
        qint64 modified = 0; ///< Nanoseconds.
        qint64 size = 0;
        quint64 number = 0; ///< Of the inode: another one when the file was replaced.
        quint64 look = 0;   ///< The last look at which it was there.
        QColor color;
        IcalContents contents;
        QDateTime forgotten; ///< What ended before is not kept.
    };

    void look(const QDateTime &from);
    void lookAt(const QString &folder, int depth, const QDateTime &from);
    void update(const QByteArray &path, const QColor &color, const QDateTime &from);
    void read(const QByteArray &path, File &file, const QDateTime &from);

    QString m_root;
    IcalReader m_reader;
    IcalSuspects m_suspects;
    QMap<QByteArray, File> m_files; ///< By path; in an order that stays.
    quint64 m_looks = 0;
};

} // namespace Kestrune
