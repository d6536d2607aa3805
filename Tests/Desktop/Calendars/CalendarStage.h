#pragma once

#include "Desktop/Calendars/DesktopCalendars.h"
#include "EndToEnd/PrivateBus.h"
#include "EndToEnd/Waiting.h"
#include "Support/Fakes.h"
#include "Support/TestRegistry.h"

#include <chrono>

/// What a test asks of a program that keeps calendars, whichever it is: calendars with items in them, the
/// adapter that reads them, and a look at them with another program's eyes.
struct CalendarStage
{
    virtual ~CalendarStage() = default;

    /// A calendar ("Calendar") or task list ("Task List") with those components. Returns what `texts` wants.
    virtual QString create(const QString &kind, const QByteArray &components, const QString &color) = 0;
    /// A list that cannot be written.
    virtual QString createReadOnly(const QByteArray &components) = 0;
    virtual QByteArray texts(const QString &calendar) = 0;
    virtual CalendarStore &store() = 0;

    static QByteArray calendar(const QByteArray &components)
    {
        return "BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Tests//EN\n" + components + "END:VCALENDAR\n";
    }

    template <typename Result>
    static Result wait(const QFuture<Result> &future)
    {
        if (!waitUntil([&] { return future.isFinished(); }) || future.isCanceled())
            qFatal("the calendars do not answer");
        return future.result();
    }
};

/// Folders of files.
struct FolderStage : CalendarStage
{
    FolderStage()
    {
        m_defaults.setObject(DesktopCalendars::sourceKey(), u"folders"_s);
        m_defaults.setObject(DesktopCalendars::folderKey(), m_root.path());
    }

    QString create(const QString &kind, const QByteArray &components, const QString &color) override
    {
        const QString folder = m_root.filePath(u"account/%1 %2"_s.arg(kind).arg(++m_count));
        write(folder + u"/color"_s, color.toUtf8() + '\n');
        write(folder + u"/item.ics"_s, calendar(components));
        return folder + u"/item.ics"_s;
    }
    /// Its file's name leaves no room for that of a new file beside it, which stops the superuser too.
    QString createReadOnly(const QByteArray &components) override
    {
        const QString file = m_root.filePath(QString(250, u'x') + u".ics"_s);
        write(file, calendar(components));
        return file;
    }
    QByteArray texts(const QString &file) override { return readFile(file); }
    CalendarStore &store() override { return m_store; }
    QString path() const { return m_root.path(); }
    void keep(const QString &name, const QByteArray &data) const { write(m_root.filePath(name), data); }

    static void write(const QString &path, const QByteArray &data)
    {
        if (!writeFile(path, data))
            qFatal("%s cannot be written", qPrintable(path));
    }

private:
    QTemporaryDir m_root;
    int m_count = 0;
    Fakes::MemoryDefaults m_defaults;
    DesktopCalendars m_store{QDBusConnection(QString()), m_defaults, QStringLiteral(KESTRUNE_READER)};
};

/// Evolution Data Server on a bus and in a home of its own, filled by its own library.
struct EvolutionStage : CalendarStage
{
    EvolutionStage()
    {
        m_defaults.setObject(DesktopCalendars::sourceKey(), u"evolution"_s);
        m_client.launch(u"/usr/bin/python3"_s, {QString::fromLatin1(KESTRUNE_EVOLUTION_CLIENT)});
    }

    QString create(const QString &kind, const QByteArray &components, const QString &color) override
    {
        return create(kind, color, u"ics"_s, QString::fromUtf8(calendar("METHOD:PUBLISH\n" + components)));
    }
    QString createReadOnly(const QByteArray &components) override
    {
        const QString file = m_home.filePath(u"read-only.ics"_s);
        FolderStage::write(file, calendar(components));
        return create(u"Task List"_s, u"#00ff00"_s, u"file"_s, file);
    }
    QByteArray texts(const QString &uid) override
    {
        QString all;
        for (const QJsonValue &text : ask({{u"do"_s, u"texts"_s}, {u"uid"_s, uid}})[u"texts"_s].toArray())
            all += text.toString();
        return all.toUtf8();
    }
    CalendarStore &store() override { return m_store; }

    QJsonObject ask(const QJsonObject &request)
    {
        m_client.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
        if (!waitUntil([&] { return m_client.canReadLine(); }, 30'000))
            qFatal("the other program does not answer: %s", m_client.readAllStandardError().constData());
        return QJsonDocument::fromJson(m_client.readLine()).object();
    }
    QDBusConnection bus() const { return m_bus.connection(); }

private:
    QString create(const QString &kind, const QString &color, const QString &key, const QString &value)
    {
        const QString name = u"Calendar %1"_s.arg(++m_count);
        return ask({{u"do"_s, u"create"_s},
                    {u"name"_s, name},
                    {u"kind"_s, kind},
                    {u"color"_s, color},
                    {key, value}})[u"uid"_s]
            .toString();
    }

    static QString services(const QTemporaryDir &home)
    {
        for (const auto &[name, program] : {std::pair("Sources5", "evolution-source-registry"),
                                            std::pair("Calendar8", "evolution-calendar-factory")}) {
            const QByteArray service = QByteArray("org.gnome.evolution.dataserver.") + name;
            FolderStage::write(home.filePath(u"services/"_s) + QLatin1String(service) + u".service"_s,
                               "[D-BUS Service]\nName=" + service + "\nExec=/usr/libexec/" + program + "\n");
        }
        return home.filePath(u"services"_s);
    }
    static QProcessEnvironment environment(const QTemporaryDir &home)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home.path());
        for (const char *name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            environment.insert(QLatin1String(name), home.path());
        environment.insert(u"GSETTINGS_BACKEND"_s, u"memory"_s);
        return environment;
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment = environment(m_home);
    PrivateBus m_bus{m_environment, m_home.path(), services(m_home)};
    ChildProcess m_client{m_environment};
    int m_count = 0;
    Fakes::MemoryDefaults m_defaults;
    DesktopCalendars m_store{m_bus.connection(), m_defaults, QStringLiteral(KESTRUNE_READER),
                             std::chrono::minutes(1)};
};
