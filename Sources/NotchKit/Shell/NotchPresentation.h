#pragma once

#include "NotchKit/NotchScreenModel.h"
#include "NotchKit/NotchServices.h"

#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

class ShelfModel;

/// One block of Home: the file of its view, and the tool that it belongs to.
struct HomeTile
{
    Q_GADGET
    QML_VALUE_TYPE(homeTile)
    Q_PROPERTY(QString file MEMBER file)
    Q_PROPERTY(QString tool MEMBER tool)
    Q_PROPERTY(Kestrune::ToolModel *model MEMBER model)

public:
    QString file;
    QString tool; ///< Its raw value; empty for none.
    ToolModel *model = nullptr;
};

/// A tool's pane.
struct PaneEntry
{
    Q_GADGET
    QML_VALUE_TYPE(paneEntry)
    Q_PROPERTY(QString file MEMBER file)
    Q_PROPERTY(Kestrune::ToolModel *model MEMBER model)

public:
    QString file; ///< Beside the view's.
    ToolModel *model = nullptr;
};

/// One button of the row of tools.
struct ToolEntry
{
    Q_GADGET
    QML_VALUE_TYPE(toolEntry)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)

public:
    QString title; ///< In the user's language.
    QString symbol;
};

/// What the notch view shows, worked out from the screen model, the hub and the catalogue. It keeps no
/// state of its own.
class NotchPresentation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made for each notch window")
    Q_MOC_INCLUDE("NotchKit/Tools/Shelf/ShelfModel.h")
    /// The offered tools in order.
    Q_PROPERTY(QList<Kestrune::ToolEntry> toolRow READ toolRow NOTIFY toolRowChanged)
    /// The selected tool's place in the row, -1 when it is not in it.
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectionChanged)
    Q_PROPERTY(QString paneTitle READ paneTitle NOTIFY selectionChanged)
    /// The panes of all tools, offered or not, and the file of the selected one's.
    Q_PROPERTY(QList<Kestrune::PaneEntry> panes READ panes CONSTANT)
    Q_PROPERTY(QString paneFile READ paneFile NOTIFY selectionChanged)
    /// The view in the closed notch's wings; empty without an activity.
    Q_PROPERTY(QString activityFile READ activityFile NOTIFY activityFileChanged)
    Q_PROPERTY(Kestrune::ToolModel *activityModel READ activityModel NOTIFY activityFileChanged)
    /// The Home blocks in the three visible columns, left to right: lists of HomeTile.
    Q_PROPERTY(QVariantList homeColumns READ homeColumns NOTIFY homeColumnsChanged)
    /// The raw values of the offered tools.
    Q_PROPERTY(QStringList offeredTools READ offeredTools NOTIFY toolRowChanged)
    Q_PROPERTY(Kestrune::ShelfModel *shelf READ shelf CONSTANT)
    Q_PROPERTY(bool offersSettings READ offersSettings CONSTANT)
    Q_PROPERTY(QString creditTitle READ creditTitle CONSTANT)

public:
    NotchPresentation(NotchScreenModel &model, NotchServices &services, QObject *parent = nullptr);

    QList<ToolEntry> toolRow() const;
    int selectedIndex() const;
    QString paneTitle() const;
    QString paneFile() const;
    QList<PaneEntry> panes() const;
    QString activityFile() const;
    ToolModel *activityModel() const;
    QVariantList homeColumns() const;
    QStringList offeredTools() const { return rawValues(m_services.settings()->tools()); }
    ShelfModel *shelf() const;
    bool offersSettings() const { return bool(m_services.openSettings); }
    QString creditTitle() const;

    /// Shows the tool at `index` of the row.
    Q_INVOKABLE void select(int index);

    /// Shows the tool of that raw value, if it is offered.
    Q_INVOKABLE void selectTool(const QString &rawValue);

    /// Chooses a tool where the keys ask for one: Control with 1 to 9 for its place in the row, wherever the
    /// keyboard's layout has the digits, with Tab for the next and with Shift and Tab for the one before.
    /// False for other keys; `key` and `modifiers` as Qt's, `scanCode` as X11's.
    Q_INVOKABLE bool chooseByKey(int key, int modifiers, quint32 scanCode);

    /// Puts the files on the shelf.
    Q_INVOKABLE void addToShelf(const QList<QUrl> &files);

    /// Takes what was dropped on the notch onto the shelf, and shows that.
    Q_INVOKABLE void takeDrop();

    Q_INVOKABLE void openSettings();
    Q_INVOKABLE void openCredit();

Q_SIGNALS:
    void toolRowChanged();
    void selectionChanged();
    void activityFileChanged();
    void homeColumnsChanged();

private:
    void select(NotchTool tool);
    void selectNext(int step);
    HomeTile tileOf(HomeWidget widget) const;

    NotchScreenModel &m_model;
    NotchServices &m_services;
};

} // namespace Kestrune
