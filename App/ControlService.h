#pragma once

#include "SettingsKeys.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>

#include <functional>
#include <optional>
#include <vector>

namespace Kestrune {

class AppState;
struct WindowSystemChoice;

/// The running program on the session bus. Its calls come from the command line, from key bindings and
/// from a second start. Main thread only.
class ControlService : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "example.kestrune.Control")

public:
    static QString busName() { return QStringLiteral("example.kestrune.Kestrune"); }
    static QString objectPath() { return QStringLiteral("/example/kestrune/Kestrune"); }
    static QString interfaceName() { return QStringLiteral("example.kestrune.Control"); }

    /// What the calls are about.
    struct Program
    {
        AppState &app;
        SettingsKeys &settings;
        const WindowSystemChoice &windows;
    };

    explicit ControlService(QObject *parent = nullptr);

    /// Answers the calls from now on, those first that came before: nobody who knows the program's name is
    /// told that there is nothing to talk to, however early.
    void serve(const Program &program);

    /// Answers no more calls; what they were about may go.
    void endService() { m_program.reset(); }

public Q_SLOTS:
    /// Opens or closes the notch of the display under the pointer.
    Q_SCRIPTABLE void Toggle();
    /// Opens the notch on the tool of that raw value, or with an empty one on what it showed last.
    Q_SCRIPTABLE void Open(const QString &tool);
    /// Closes every notch.
    Q_SCRIPTABLE void Close();
    /// Shows the settings window.
    Q_SCRIPTABLE void OpenSettings();
    /// The teleprompter: "play", "pause" or "toggle" with an empty number; "speed" (points a second) or
    /// "position" (percent of the script) with a number, which is added to the present one when it has a
    /// sign.
    Q_SCRIPTABLE void Prompter(const QString &action, const QString &number);
    Q_SCRIPTABLE void Quit();
    /// The program was started again, to be opened on the tool of that raw value, or on what it showed last.
    Q_SCRIPTABLE void Reopen(const QString &tool);
    /// The state as JSON, with nothing of what the user keeps in the tools.
    Q_SCRIPTABLE QString Status();
    /// Any key of "kestrune settings list", as text; the note and the shelf are among them.
    Q_SCRIPTABLE QString GetSetting(const QString &key);
    Q_SCRIPTABLE void SetSetting(const QString &key, const QString &text);
    Q_SCRIPTABLE void ResetSetting(const QString &key);

private:
    struct Answer
    {
        std::optional<QString> text;
        std::optional<QString> fault;
    };
    using Work = std::function<Answer(const Program &)>;

    struct Held
    {
        QDBusConnection bus;
        QDBusMessage call;
        Work work;
    };

    QString answer(const Work &work);
    bool fits(const QString &argument, qsizetype most) const;
    void refuse(const QString &fault) const;

    std::optional<Program> m_program;
    std::vector<Held> m_held; ///< Calls until the program serves.
};

} // namespace Kestrune
