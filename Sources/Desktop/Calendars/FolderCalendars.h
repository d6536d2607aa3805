#pragma once

#include "CalendarSource.h"
#include "HelperCalendars.h"

#include <QFileInfo>
#include <QMap>

namespace Kestrune {

/// Calendars as folders of iCalendar files, as vdirsyncer, khal and todoman keep them: a folder a calendar
/// with a file an item, its colour in the file `color`, its name in the file `displayname`. A file is read
/// again only when it has changed.
class FolderCalendars : public CalendarSource
{
public:
    /// `root` holds the calendars, up to two folders deep; `helper` is the program that reads them.
    FolderCalendars(const QString &root, const QString &helper)
        : m_root(root)
        , m_reader(helper)
    {}

    /// The folder that `chosen` names ("~" is the user's home); where it is empty, the first of the usual
    /// ones that is there.
    static QString rootFor(const QString &chosen);

    CalendarAccess access() override;
    bool requestAccess() override;
    std::optional<CalendarStore::Events> events(const IcalRange &range) override;
    std::optional<CalendarStore::Tasks> openTasks() override;
    QStringList unread() override;
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
        IcalFound found;
        IcalRange range; ///< That of what was found.
    };

    /// Without a range for the files alone: what was found of those that have not changed stays as it is.
    void look(const std::optional<IcalRange> &range);
    void lookAt(const QString &folder, int depth, const std::optional<IcalRange> &range);
    void update(const QByteArray &path, const QColor &color, const std::optional<IcalRange> &range);
    void readChanged(const IcalRange &range);
    void take(const QByteArray &path, IcalFound found, const IcalRange &range);
    static bool covers(const File &file, const IcalRange &range);

    QString m_root;
    HelperCalendars m_reader;
    QByteArray m_zone; ///< The user's, when all was read.
    QList<QByteArray> m_changed;
    QMap<QByteArray, File> m_files; ///< By path; in an order that stays.
    quint64 m_looks = 0;
};

} // namespace Kestrune
