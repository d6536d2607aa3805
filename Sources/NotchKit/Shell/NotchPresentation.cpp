#include "NotchPresentation.h"

#include "NotchKit/Tools/Shelf/ShelfModel.h"

#include <algorithm>
#include <array>

namespace Kestrune {

namespace {

constexpr quint32 kFirstDigit = 10; // The code of the key that is labelled 1 on most keyboards.

/// 1 to 9, or 0 for another key.
int digitOf(int key, quint32 scanCode)
{
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return key - Qt::Key_0;
    return scanCode >= kFirstDigit && scanCode < kFirstDigit + 9
               ? static_cast<int>(scanCode - kFirstDigit) + 1
               : 0;
}

QString fileOf(const char *view) { return QLatin1String(view) + QLatin1String(".qml"); }

} // namespace

NotchPresentation::NotchPresentation(NotchScreenModel &model, NotchServices &services, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_services(services)
{
    const NotchSettings *settings = services.settings();
    connect(settings, &NotchSettings::toolsChanged, this, &NotchPresentation::toolRowChanged);
    connect(settings, &NotchSettings::toolsChanged, this, &NotchPresentation::selectionChanged);
    connect(settings, &NotchSettings::homeOrderChanged, this, &NotchPresentation::homeColumnsChanged);
    connect(settings, &NotchSettings::homeColumnsChanged, this, &NotchPresentation::homeColumnsChanged);
    connect(&model, &NotchScreenModel::selectedChanged, this, &NotchPresentation::selectionChanged);
    connect(&services, &NotchServices::activityToolChanged, this, &NotchPresentation::activityFileChanged);
}

QList<ToolEntry> NotchPresentation::toolRow() const
{
    QList<ToolEntry> row;
    for (const NotchTool tool : m_services.settings()->tools())
        row.append({title(tool), symbol(tool)});
    return row;
}

int NotchPresentation::selectedIndex() const
{
    return static_cast<int>(m_services.settings()->tools().indexOf(m_model.selected()));
}

QString NotchPresentation::paneTitle() const { return title(m_model.selected()); }

QString NotchPresentation::paneFile() const { return fileOf(entry(m_model.selected()).view); }

QList<PaneEntry> NotchPresentation::panes() const
{
    QList<PaneEntry> panes;
    for (const NotchTool tool : allCases<NotchTool>())
        panes.append({fileOf(entry(tool).view), m_services.model(tool)});
    return panes;
}

QString NotchPresentation::activityFile() const
{
    const auto tool = m_services.activityTool();
    if (!tool)
        return {};
    return fileOf(entry(*tool).wings);
}

ToolModel *NotchPresentation::activityModel() const
{
    const auto tool = m_services.activityTool();
    return tool ? m_services.model(*tool) : nullptr;
}

HomeTile NotchPresentation::tileOf(HomeWidget widget) const
{
    const CatalogueEntry &block = entry(widget);
    if (!block.tool)
        return {fileOf(block.view), QString(), nullptr};
    return {fileOf(block.view), rawValue(*block.tool), m_services.model(*block.tool)};
}

QVariantList NotchPresentation::homeColumns() const
{
    QVariantList columns;
    for (const HomeColumn column : {HomeColumn::left, HomeColumn::center, HomeColumn::right}) {
        QList<HomeTile> tiles;
        for (const HomeWidget widget : m_services.settings()->widgets(column))
            tiles.append(tileOf(widget));
        columns.append(QVariant::fromValue(tiles));
    }
    return columns;
}

ShelfModel *NotchPresentation::shelf() const { return m_services.model<ShelfModel>(); }

void NotchPresentation::addToShelf(const QList<QUrl> &files) { shelf()->add(files); }

void NotchPresentation::takeDrop()
{
    shelf()->loadURLs();
    selectTool(rawValue(NotchTool::shelf));
}

QString NotchPresentation::creditTitle() const
{
    return m_services.branding().creditTitle.value_or(QString());
}

void NotchPresentation::select(int index)
{
    const NotchTools tools = m_services.settings()->tools();
    if (index >= 0 && index < tools.size())
        select(tools.at(index));
}

void NotchPresentation::selectTool(const QString &rawValue)
{
    const auto tool = fromRawValue<NotchTool>(rawValue);
    if (tool && m_services.settings()->tools().contains(*tool))
        select(*tool);
}

void NotchPresentation::selectNext(int step)
{
    const auto count = static_cast<int>(m_services.settings()->tools().size());
    if (count > 0)
        select((std::max(selectedIndex(), 0) + step + count) % count);
}

bool NotchPresentation::chooseByKey(int key, int modifiers, quint32 scanCode)
{
    const auto held = Qt::KeyboardModifiers(modifiers) & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const bool isTab = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    if (isTab && (held & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::ControlModifier) {
        selectNext(held.testFlag(Qt::ShiftModifier) ? -1 : 1);
        return true;
    }
    const int digit = held == Qt::ControlModifier ? digitOf(key, scanCode) : 0;
    if (digit > 0)
        select(digit - 1);
    return digit > 0;
}

void NotchPresentation::select(NotchTool tool)
{
    m_model.setSelected(tool);
    m_services.show(tool);
}

void NotchPresentation::openSettings()
{
    if (m_services.openSettings)
        m_services.openSettings();
}

void NotchPresentation::openCredit()
{
    if (const auto &url = m_services.branding().creditURL)
        m_services.surroundings()->openUrl(*url);
}

} // namespace Kestrune
