#pragma once

#include "Catalogue.h"
#include "NotchKit/Platform/KeyCombination.h"
#include "NotchKit/Platform/UserDefaults.h"

#include <QObject>
#include <QProperty>

#include <functional>
#include <limits>
#include <optional>

namespace Kestrune {

using NotchTools = QList<NotchTool>;
using HomeWidgets = QList<HomeWidget>;
using OptionalDouble = std::optional<double>;

/// The numbers that a setting may be set to, both ends included.
struct SettingRange
{
    double least = 0;
    double most = std::numeric_limits<double>::infinity();
};

/// What a setting may be set to by hand, beyond its type. What is stored already is read as it is.
struct SettingRule
{
    QString wanted; ///< In words, such as "a number from 8 to 140"; empty where every value is allowed.
    /// The part of a value that is not allowed, as text; nothing where all of it is.
    std::function<std::optional<QString>(const DefaultsValue &)> culprit = [](const DefaultsValue &) {
        return std::nullopt;
    };

    /// One of `cases`, letter for letter.
    static SettingRule oneOf(const QStringList &cases);
};

/// Every setting: type, property name, the name in its setter, the default. Stored under "notch." + name.
#define KESTRUNE_SETTINGS(SETTING)                                                                           \
    SETTING(NotchOpenMode, openMode, OpenMode, NotchOpenMode::hover)                                         \
    SETTING(double, hoverDelay, HoverDelay, 0.12)                                                            \
    SETTING(NotchTools, tools, Tools, allCases<NotchTool>())                                                 \
    SETTING(bool, allDisplays, AllDisplays, false)                                                           \
    SETTING(bool, showWithoutNotch, ShowWithoutNotch, true)                                                  \
    SETTING(bool, hideOverFullScreen, HideOverFullScreen, true)                                              \
    SETTING(NotchPlacement, placement, Placement, NotchPlacement::automatic)                                 \
    SETTING(bool, shortcutEnabled, ShortcutEnabled, true)                                                    \
    SETTING(QString, shortcut, Shortcut, KeyCombination().words())                                           \
    SETTING(bool, liveActivities, LiveActivities, true)                                                      \
    SETTING(QStringList, ignoredPlayers, IgnoredPlayers, QStringList())                                      \
    SETTING(QStringList, ignoredClipboardPrograms, IgnoredClipboardPrograms, QStringList())                  \
    SETTING(QString, note, Note, QString())                                                                  \
    SETTING(QStringList, shelfPaths, ShelfPaths, QStringList())                                              \
    SETTING(QStringList, shelfMounts, ShelfMounts, QStringList())                                            \
    SETTING(bool, clipboardHistory, ClipboardHistory, true)                                                  \
    SETTING(bool, announceScreenshots, AnnounceScreenshots, true)                                            \
    SETTING(bool, readCodexUsage, ReadCodexUsage, false)                                                     \
    SETTING(bool, readClaudeUsage, ReadClaudeUsage, false)                                                   \
    SETTING(qint64, claudeBlockBudget, ClaudeBlockBudget, 0)                                                 \
    SETTING(QString, weatherCity, WeatherCity, QString())                                                    \
    SETTING(OptionalDouble, weatherLatitude, WeatherLatitude, std::nullopt)                                  \
    SETTING(OptionalDouble, weatherLongitude, WeatherLongitude, std::nullopt)                                \
    SETTING(bool, useFahrenheit, UseFahrenheit, localeUsesFahrenheit())                                      \
    SETTING(QStringList, tickers, Tickers, defaultTickers())                                                 \
    SETTING(QString, prompterText, PrompterText, QString())                                                  \
    SETTING(double, prompterSpeed, PrompterSpeed, 28.0)                                                      \
    SETTING(double, prompterFontSize, PrompterFontSize, 22.0)                                                \
    SETTING(bool, prompterShortcutEnabled, PrompterShortcutEnabled, false)                                   \
    SETTING(QString, mirrorCamera, MirrorCamera, QString())                                                  \
    SETTING(HomeWidgets, homeOrder, HomeOrder, allCases<HomeWidget>())                                       \
    SETTING(StringMap, homeColumns, HomeColumns, defaultHomeColumnStrings())

/// Every preference of the notch, and the small pieces of user data its tools keep.
///
/// Read once from the store at construction. Writing a property announces the change, stores the value
/// durably, and then notifies the property's readers; writing an equal value does nothing. Values are
/// neither clamped nor validated here. Main thread only: a write from another thread stops the program.
class NotchSettings : public QObject
{
    Q_OBJECT

#define KESTRUNE_DECLARE_SETTING(Type, name, Name, fallback)                                                 \
    Q_PROPERTY(Type name READ name WRITE set##Name NOTIFY name##Changed BINDABLE bindable##Name)             \
public:                                                                                                      \
    Type name() const { return m_##name; }                                                                   \
    void set##Name(const Type &value) { assign(m_##name, value, #name); }                                    \
    QBindable<Type> bindable##Name() const { return QBindable<Type>(&m_##name); }                            \
                                                                                                             \
Q_SIGNALS:                                                                                                   \
    void name##Changed();                                                                                    \
                                                                                                             \
private:                                                                                                     \
    Q_OBJECT_BINDABLE_PROPERTY(NotchSettings, Type, m_##name, &NotchSettings::name##Changed)

    KESTRUNE_SETTINGS(KESTRUNE_DECLARE_SETTING)
#undef KESTRUNE_DECLARE_SETTING

    Q_PROPERTY(double leastPrompterSpeed READ leastPrompterSpeed CONSTANT)
    Q_PROPERTY(double mostPrompterSpeed READ mostPrompterSpeed CONSTANT)
    Q_PROPERTY(double leastPrompterFontSize READ leastPrompterFontSize CONSTANT)
    Q_PROPERTY(double mostPrompterFontSize READ mostPrompterFontSize CONSTANT)

public:
    static constexpr SettingRange kPrompterSpeeds{8, 140};    ///< Points a second.
    static constexpr SettingRange kPrompterFontSizes{14, 60}; ///< Points.

    static double leastPrompterSpeed() { return kPrompterSpeeds.least; }
    static double mostPrompterSpeed() { return kPrompterSpeeds.most; }
    static double leastPrompterFontSize() { return kPrompterFontSizes.least; }
    static double mostPrompterFontSize() { return kPrompterFontSizes.most; }

    /// One setting by name, for the command line: its stored form and how to write it.
    struct Access
    {
        std::function<std::optional<DefaultsValue>(const NotchSettings &)> stored; ///< Nothing: absent.
        /// Writes a value of the setting's stored type; nothing resets it to its default and removes the
        /// key. False, and no change, when the value is of another type or names no case.
        std::function<bool(NotchSettings &, const std::optional<DefaultsValue> &)> assign;
        DefaultsValue example; ///< Any value of the stored type.
        SettingRule rule;      ///< For who writes by hand; `assign` does not ask it.
    };

    /// Reads every setting from `defaults`, which must outlive this object, and records which tools this
    /// version knows, so that tools that a later version adds join the enabled ones.
    explicit NotchSettings(UserDefaults &defaults, QObject *parent = nullptr);

    /// The settings' names in declaration order.
    static const QStringList &names();

    /// Access to the setting `name`; null for an unknown name.
    static const Access *access(const QString &name);

    /// The keys of `shortcut`; the default ones where it holds none.
    KeyCombination hotKeys() const { return KeyCombination::parse(shortcut()).value_or(KeyCombination()); }

    bool isEnabled(NotchTool tool) const;

    /// Turns a tool on, at its catalogue position, or off.
    void setEnabled(NotchTool tool, bool on);

    /// Where the widget is placed; hidden without a valid entry.
    HomeColumn column(HomeWidget widget) const;
    void setColumn(HomeColumn column, HomeWidget widget);

    /// The widgets of a column, in `homeOrder`.
    QList<HomeWidget> widgets(HomeColumn column) const;

    /// Swaps the widget with the one `offset` places away in the whole order, at most to either end.
    void move(HomeWidget widget, int offset);

    /// Restores the default order and columns.
    void resetHome();

    static const QMap<HomeWidget, HomeColumn> &defaultHomeColumns();

Q_SIGNALS:
    /// The property `name` is about to change; its old value still reads.
    void aboutToChange(const QString &name);

private:
    template <typename Property, typename Type>
    void assign(Property &property, const Type &value, const char *name);
    void save(const char *name, const std::optional<DefaultsValue> &value);
    void admitNewTools();

    static bool localeUsesFahrenheit();
    static QStringList defaultTickers();
    static StringMap defaultHomeColumnStrings();
    static QMap<QString, Access> makeAccess();

    UserDefaults &m_defaults;
};

} // namespace Kestrune
