#include "SettingsPresentation.h"

#include "NotchKit/Kit/Format.h"
#include "NotchKit/NotchStrings.h"

#include <QCoreApplication>

#include <cmath>

namespace Kestrune {

namespace {

constexpr double kMillisecondsPerSecond = 1000;
constexpr double kDelaysPerSecond = 20; // The slider's steps.

template <CatalogueCase Case>
QStringList titles()
{
    QStringList titles;
    for (const Case value : allCases<Case>())
        titles.append(title(value));
    return titles;
}

} // namespace

void SettingsPresentation::setSettings(NotchSettings *settings)
{
    m_settings = settings;
    using Self = SettingsPresentation;
    using Settings = NotchSettings;
    connect(settings, &Settings::openModeChanged, this, &Self::openModeChanged);
    connect(settings, &Settings::placementChanged, this, &Self::placementChanged);
    connect(settings, &Settings::shortcutChanged, this, &Self::hotKeyTextChanged);
    connect(settings, &Settings::hoverDelayChanged, this, &Self::hoverDelayChanged);
    connect(settings, &Settings::claudeBlockBudgetChanged, this, &Self::budgetChanged);
    connect(settings, &Settings::homeOrderChanged, this, &Self::homeRowsChanged);
    connect(settings, &Settings::homeColumnsChanged, this, &Self::homeRowsChanged);
    connect(settings, &Settings::toolsChanged, this, &Self::toolsChanged);
    for (const auto changed : {&Self::openModeChanged, &Self::placementChanged, &Self::hoverDelayChanged,
                               &Self::budgetChanged, &Self::homeRowsChanged, &Self::toolsChanged})
        Q_EMIT(this->*changed)();
}

void SettingsPresentation::setController(NotchController *controller)
{
    m_controller = controller;
    connect(controller, &NotchController::hotKeyBindingChanged, this,
            &SettingsPresentation::hotKeyTextChanged);
    Q_EMIT hotKeyTextChanged();
}

QStringList SettingsPresentation::openModeTitles() { return titles<NotchOpenMode>(); }

int SettingsPresentation::openMode() const
{
    return m_settings ? static_cast<int>(m_settings->openMode()) : 0;
}

void SettingsPresentation::setOpenMode(int mode)
{
    m_settings->setOpenMode(static_cast<NotchOpenMode>(mode));
}

QStringList SettingsPresentation::placementTitles() { return titles<NotchPlacement>(); }

int SettingsPresentation::placement() const
{
    return m_settings ? static_cast<int>(m_settings->placement()) : 0;
}

void SettingsPresentation::setPlacement(int placement)
{
    m_settings->setPlacement(static_cast<NotchPlacement>(placement));
}

QString SettingsPresentation::hoverDelayText() const
{
    if (!m_settings)
        return {};
    //: %1 is a number of milliseconds.
    return notchStrings(QT_TRANSLATE_NOOP("notch", "%1 ms"))
        .arg(Format::digits(QString::number(std::lround(m_settings->hoverDelay() * kMillisecondsPerSecond))));
}

void SettingsPresentation::setHoverDelay(double seconds)
{
    m_settings->setHoverDelay(std::round(seconds * kDelaysPerSecond) / kDelaysPerSecond);
}

QString SettingsPresentation::hotKeyText() const
{
    const QString command = QStringLiteral("kestrune\u00a0toggle"); // On one line.
    const HotKeyBinding binding = m_controller ? m_controller->hotKeyBinding() : HotKeyBinding();
    switch (binding.state) {
    case HotKeyBinding::State::pending:
    case HotKeyBinding::State::asked:
        break;
    case HotKeyBinding::State::chosen:
        //: %1 is a combination of keys, as the desktop writes it.
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Bound to %1")).arg(binding.trigger);
    case HotKeyBinding::State::taken:
        //: %1 is a command.
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Another program has these keys. In the desktop’s "
                                                       "settings, bind others to: %1"))
            .arg(command);
    case HotKeyBinding::State::unbound:
        //: %1 is a command.
        return notchStrings(QT_TRANSLATE_NOOP("notch", "No keys are bound. In the desktop’s settings, bind "
                                                       "some to: %1"))
            .arg(command);
    }
    return {};
}

QString SettingsPresentation::hotKeyTitle() const
{
    if (!m_settings || m_settings->hotKeys() == KeyCombination())
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Open and close with ⌃⌥⌘N"));
    //: %1 is a combination of keys.
    return notchStrings(QT_TRANSLATE_NOOP("notch", "Open and close with %1")).arg(hotKeys());
}

QString SettingsPresentation::hotKeys() const
{
    return m_settings ? m_settings->hotKeys().words() : QString();
}

bool SettingsPresentation::choosesHotKeys() const
{
    const auto state = m_controller ? m_controller->hotKeyBinding().state : HotKeyBinding::State::pending;
    return state == HotKeyBinding::State::asked || state == HotKeyBinding::State::taken;
}

bool SettingsPresentation::chooseHotKeys(int key, int modifiers)
{
    const auto keys = KeyCombination::ofPress(key, modifiers);
    if (keys)
        m_settings->setShortcut(keys->words());
    return keys.has_value();
}

QString SettingsPresentation::budgetText() const
{
    return m_settings ? QString::number(m_settings->claudeBlockBudget()) : QString();
}

void SettingsPresentation::setBudget(const QString &text)
{
    bool isNumber = text.isEmpty();
    const qint64 tokens = isNumber ? 0 : text.toLongLong(&isNumber);
    if (isNumber)
        m_settings->setClaudeBlockBudget(tokens);
}

QStringList SettingsPresentation::columnTitles() { return titles<HomeColumn>(); }

QList<HomeRow> SettingsPresentation::homeRows() const
{
    if (!m_settings)
        return {};
    QList<HomeWidget> listed; // A stored order may repeat itself.
    QList<HomeRow> rows;
    for (const HomeWidget widget : m_settings->homeOrder()) {
        if (listed.contains(widget))
            continue;
        listed.append(widget);
        rows.append({rawValue(widget), title(widget), static_cast<int>(m_settings->column(widget))});
    }
    return rows;
}

void SettingsPresentation::setColumn(const QString &widget, int column)
{
    if (const auto found = fromRawValue<HomeWidget>(widget))
        m_settings->setColumn(static_cast<HomeColumn>(column), *found);
}

void SettingsPresentation::move(const QString &widget, int offset)
{
    if (const auto found = fromRawValue<HomeWidget>(widget))
        m_settings->move(*found, offset);
}

QList<ToolSwitch> SettingsPresentation::tools() const
{
    QList<ToolSwitch> switches;
    if (!m_settings)
        return switches;
    for (const NotchTool tool : allCases<NotchTool>())
        switches.append({rawValue(tool), title(tool), symbol(tool), m_settings->isEnabled(tool)});
    return switches;
}

void SettingsPresentation::setEnabled(const QString &tool, bool on)
{
    if (const auto found = fromRawValue<NotchTool>(tool))
        m_settings->setEnabled(*found, on);
}

} // namespace Kestrune
