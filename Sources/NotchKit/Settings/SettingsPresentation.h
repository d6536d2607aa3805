#pragma once

#include "NotchKit/NotchController.h"
#include "NotchKit/NotchSettings.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// One block of Home as the settings list it.
struct HomeRow
{
    Q_GADGET
    QML_VALUE_TYPE(homeRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int column MEMBER column)

public:
    QString id;     ///< The widget's raw value.
    QString title;  ///< In the user's language.
    int column = 0; ///< Its place among `columnTitles`.

    bool operator==(const HomeRow &) const = default;
};

/// One tool as the settings list it.
struct ToolSwitch
{
    Q_GADGET
    QML_VALUE_TYPE(toolSwitch)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(bool on MEMBER on)

public:
    QString id; ///< The tool's raw value.
    QString title;
    QString symbol;
    bool on = false;

    bool operator==(const ToolSwitch &) const = default;
};

/// The settings as their form shows and writes them, where that differs from how they are kept. It keeps
/// no state of its own, and is empty until it has been given the settings.
class SettingsPresentation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kestrune::NotchSettings *settings READ settings WRITE setSettings REQUIRED)
    Q_PROPERTY(Kestrune::NotchController *controller READ controller WRITE setController REQUIRED)
    Q_PROPERTY(QStringList openModeTitles READ openModeTitles CONSTANT)
    /// The place of the chosen mode among the titles.
    Q_PROPERTY(int openMode READ openMode WRITE setOpenMode NOTIFY openModeChanged)
    Q_PROPERTY(QStringList placementTitles READ placementTitles CONSTANT)
    Q_PROPERTY(int placement READ placement WRITE setPlacement NOTIFY placementChanged)
    /// The hover delay in whole milliseconds: "120 ms".
    Q_PROPERTY(QString hoverDelayText READ hoverDelayText NOTIFY hoverDelayChanged)
    /// What came of the hot key, where it is not simply held as asked.
    Q_PROPERTY(QString hotKeyText READ hotKeyText NOTIFY hotKeyTextChanged)
    /// What the switch of the hot key says.
    Q_PROPERTY(QString hotKeyTitle READ hotKeyTitle NOTIFY hotKeyTextChanged)
    /// Its keys, "Ctrl+Alt+Super+N".
    Q_PROPERTY(QString hotKeys READ hotKeys NOTIFY hotKeyTextChanged)
    /// They are chosen here, and not in the desktop's own settings.
    Q_PROPERTY(bool choosesHotKeys READ choosesHotKeys NOTIFY hotKeyTextChanged)
    Q_PROPERTY(QString budgetText READ budgetText NOTIFY budgetChanged)
    Q_PROPERTY(QStringList columnTitles READ columnTitles CONSTANT)
    /// Every block of Home, in its order.
    Q_PROPERTY(QList<Kestrune::HomeRow> homeRows READ homeRows NOTIFY homeRowsChanged)
    /// Every tool, in catalogue order.
    Q_PROPERTY(QList<Kestrune::ToolSwitch> tools READ tools NOTIFY toolsChanged)

public:
    using QObject::QObject;

    NotchSettings *settings() const { return m_settings; }
    void setSettings(NotchSettings *settings);

    NotchController *controller() const { return m_controller; }
    void setController(NotchController *controller);

    static QStringList openModeTitles();
    int openMode() const;
    void setOpenMode(int mode);

    static QStringList placementTitles();
    int placement() const;
    void setPlacement(int placement);

    QString hoverDelayText() const;
    /// Takes a slider's value, in seconds, rounded to its steps of 0.05.
    Q_INVOKABLE void setHoverDelay(double seconds);

    QString hotKeyText() const;

    QString hotKeyTitle() const;
    QString hotKeys() const;
    bool choosesHotKeys() const;
    /// Takes keys as they are pressed; whether they can be a hot key.
    Q_INVOKABLE bool chooseHotKeys(int key, int modifiers);

    QString budgetText() const;
    /// Takes what is typed: no digit at all is 0, and what is no number changes nothing.
    Q_INVOKABLE void setBudget(const QString &text);

    static QStringList columnTitles();
    QList<HomeRow> homeRows() const;
    Q_INVOKABLE void setColumn(const QString &widget, int column);
    Q_INVOKABLE void move(const QString &widget, int offset);
    Q_INVOKABLE void resetHome() { m_settings->resetHome(); }

    QList<ToolSwitch> tools() const;
    Q_INVOKABLE void setEnabled(const QString &tool, bool on);

Q_SIGNALS:
    void openModeChanged();
    void placementChanged();
    void hoverDelayChanged();
    void hotKeyTextChanged();
    void budgetChanged();
    void homeRowsChanged();
    void toolsChanged();

private:
    QPointer<NotchSettings> m_settings;
    QPointer<NotchController> m_controller;
};

} // namespace Kestrune
