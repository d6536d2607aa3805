#include "NotchSettings.h"

#include <QLocale>
#include <QThread>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr auto kKnownTools = "notch.knownTools";

QString storeKey(const char *name) { return QLatin1String("notch.") + QLatin1String(name); }

/// How a setting's type is stored: encode gives the stored value, decode the setting's or nothing.
template <typename Type>
struct Stored
{
    using Value = Type;
    static std::optional<DefaultsValue> encode(const Type &value) { return DefaultsValue(value); }
    static std::optional<Type> decode(const Value &value) { return value; }
};

template <CatalogueCase Case>
struct Stored<Case>
{
    using Value = QString;
    static std::optional<DefaultsValue> encode(Case value) { return DefaultsValue(rawValue(value)); }
    static std::optional<Case> decode(const QString &raw) { return fromRawValue<Case>(raw); }
};

template <CatalogueCase Case>
struct Stored<QList<Case>>
{
    using Value = QStringList;
    static std::optional<DefaultsValue> encode(const QList<Case> &cases)
    {
        return DefaultsValue(rawValues(cases));
    }
    static std::optional<QList<Case>> decode(const QStringList &raws) { return fromRawValues<Case>(raws); }
};

template <>
struct Stored<OptionalDouble>
{
    using Value = double;
    static std::optional<DefaultsValue> encode(const OptionalDouble &value)
    {
        return value ? std::optional<DefaultsValue>(*value) : std::nullopt;
    }
    static std::optional<OptionalDouble> decode(double value) { return OptionalDouble(value); }
};

template <typename Type>
std::optional<Type> decode(const DefaultsValue &stored)
{
    const auto value = convertDefaultsValue<typename Stored<Type>::Value>(stored);
    return value ? Stored<Type>::decode(*value) : std::nullopt;
}

template <typename Type>
Type read(const UserDefaults &defaults, const char *name, const Type &fallback)
{
    const auto stored = defaults.object(storeKey(name));
    return stored ? decode<Type>(*stored).value_or(fallback) : fallback;
}

/// `cases` without repetition, in catalogue order.
template <CatalogueCase Case, typename Predicate>
QList<Case> casesWhere(Predicate wanted)
{
    QList<Case> cases;
    std::ranges::copy_if(allCases<Case>(), std::back_inserter(cases), wanted);
    return cases;
}

/// A value as the setting keeps it: tools once each in catalogue order, the Home order with every widget.
template <typename Type>
Type normalized(const Type &value)
{
    return value;
}

NotchTools normalized(const NotchTools &tools)
{
    return casesWhere<NotchTool>([&](NotchTool tool) { return tools.contains(tool); });
}

HomeWidgets normalized(const HomeWidgets &order)
{
    return order + casesWhere<HomeWidget>([&](HomeWidget widget) { return !order.contains(widget); });
}

QString alternatives(const QStringList &cases)
{
    return cases.size() < 2 ? cases.join(QString())
                            : cases.first(cases.size() - 1).join(QStringLiteral(", ")) +
                                  QStringLiteral(" or ") + cases.last();
}

template <CatalogueCase Case>
QStringList allRawValues()
{
    return rawValues(allCases<Case>());
}

std::optional<QString> firstOutside(const QStringList &cases, const QStringList &texts)
{
    const auto other =
        std::ranges::find_if(texts, [&](const QString &text) { return !cases.contains(text); });
    return other == texts.end() ? std::nullopt : std::optional(*other);
}

SettingRule inRange(const SettingRange &range, const QString &kind = QStringLiteral("a number"))
{
    const QString words = std::isfinite(range.most)
                              ? QStringLiteral("%1 from %2 to %3").arg(kind).arg(range.least).arg(range.most)
                              : QStringLiteral("%1 not below %2").arg(kind).arg(range.least);
    return {words, [range](const DefaultsValue &value) -> std::optional<QString> {
                const double number = convertDefaultsValue<double>(value).value_or(range.least);
                if (number >= range.least && number <= range.most)
                    return std::nullopt;
                return QString::number(number, 'g', QLocale::FloatingPointShortest);
            }};
}

SettingRule listOf(const QStringList &cases)
{
    return {QStringLiteral("a JSON list of %1").arg(alternatives(cases)),
            [cases](const DefaultsValue &value) {
                return firstOutside(cases, convertDefaultsValue<QStringList>(value).value_or(QStringList()));
            }};
}

SettingRule keys()
{
    return {QStringLiteral(
                "keys such as Ctrl+Alt+Super+N: a letter, a digit, Space or F1 to F12, the first three with "
                "Ctrl, Alt or Super"),
            [](const DefaultsValue &value) -> std::optional<QString> {
                const QString words = convertDefaultsValue<QString>(value).value_or(QString());
                return KeyCombination::parse(words) ? std::nullopt : std::optional(words);
            }};
}

SettingRule mapFrom(const QStringList &keys, const QStringList &cases)
{
    return {QStringLiteral("a JSON map from %1 to %2").arg(alternatives(keys), alternatives(cases)),
            [keys, cases](const DefaultsValue &value) {
                const StringMap map = convertDefaultsValue<StringMap>(value).value_or(StringMap());
                const auto key = firstOutside(keys, map.keys());
                return key ? key : firstOutside(cases, map.values());
            }};
}

template <typename Type>
SettingRule ruleOfType(const Type *)
{
    return {};
}

template <CatalogueCase Case>
SettingRule ruleOfType(const Case *)
{
    return SettingRule::oneOf(allRawValues<Case>());
}

template <CatalogueCase Case>
SettingRule ruleOfType(const QList<Case> *)
{
    return listOf(allRawValues<Case>());
}

/// Those that the type alone does not give.
const QMap<QString, SettingRule> &rulesByName()
{
    static const QMap<QString, SettingRule> rules{
        {QStringLiteral("hoverDelay"), inRange({})},
        {QStringLiteral("shortcut"), keys()},
        {QStringLiteral("claudeBlockBudget"), inRange({}, QStringLiteral("a whole number"))},
        {QStringLiteral("weatherLatitude"), inRange({-90, 90})},
        {QStringLiteral("weatherLongitude"), inRange({-180, 180})},
        {QStringLiteral("prompterSpeed"), inRange(NotchSettings::kPrompterSpeeds)},
        {QStringLiteral("prompterFontSize"), inRange(NotchSettings::kPrompterFontSizes)},
        {QStringLiteral("homeColumns"), mapFrom(allRawValues<HomeWidget>(), allRawValues<HomeColumn>())},
    };
    return rules;
}

} // namespace

SettingRule SettingRule::oneOf(const QStringList &cases)
{
    return {alternatives(cases), [cases](const DefaultsValue &value) {
                return firstOutside(cases, {convertDefaultsValue<QString>(value).value_or(QString())});
            }};
}

NotchSettings::NotchSettings(UserDefaults &defaults, QObject *parent)
    : QObject(parent)
    , m_defaults(defaults)
{
#define KESTRUNE_READ_SETTING(Type, name, Name, fallback)                                                    \
    m_##name.setValueBypassingBindings(normalized(read<Type>(m_defaults, #name, fallback)));
    KESTRUNE_SETTINGS(KESTRUNE_READ_SETTING)
#undef KESTRUNE_READ_SETTING
    admitNewTools();
}

void NotchSettings::admitNewTools()
{
    const QString key = QString::fromLatin1(kKnownTools);
    const QStringList catalogueNames = rawValues(allCases<NotchTool>());
    QStringList known = catalogueNames;
    if (const auto recorded = m_defaults.value<QStringList>(key))
        known = *recorded;
    else // Lists saved before known tools were recorded come from versions without the screenshots tool.
        known.removeAll(rawValue(NotchTool::captures));

    const NotchTools saved = m_tools;
    m_tools.setValueBypassingBindings(casesWhere<NotchTool>(
        [&](NotchTool tool) { return saved.contains(tool) || !known.contains(rawValue(tool)); }));
    m_defaults.setObject(key, catalogueNames);
}

template <typename Property, typename Type>
void NotchSettings::assign(Property &property, const Type &value, const char *name)
{
    if (QThread::currentThread() != thread())
        qFatal("NotchSettings.%s was written outside the main thread", name);
    if (property.value() == value)
        return;
    Q_EMIT aboutToChange(QString::fromLatin1(name));
    save(name, Stored<Type>::encode(value));
    property = value;
}

#define KESTRUNE_INSTANTIATE(Type, name, Name, fallback)                                                     \
    template void NotchSettings::assign(decltype(NotchSettings::m_##name) &, const Type &, const char *);
KESTRUNE_SETTINGS(KESTRUNE_INSTANTIATE)
#undef KESTRUNE_INSTANTIATE

void NotchSettings::save(const char *name, const std::optional<DefaultsValue> &value)
{
    if (value)
        m_defaults.setObject(storeKey(name), *value);
    else
        m_defaults.removeObject(storeKey(name));
}

const QStringList &NotchSettings::names()
{
#define KESTRUNE_NAME(Type, name, Name, fallback) QStringLiteral(#name),
    static const QStringList all{KESTRUNE_SETTINGS(KESTRUNE_NAME)};
#undef KESTRUNE_NAME
    return all;
}

QMap<QString, NotchSettings::Access> NotchSettings::makeAccess()
{
    QMap<QString, Access> all;
#define KESTRUNE_ACCESS(Type, name, Name, fallback)                                                          \
    all.insert(                                                                                              \
        QStringLiteral(#name),                                                                               \
        {[](const NotchSettings &settings) { return Stored<Type>::encode(settings.name()); },                \
         [](NotchSettings &settings, const std::optional<DefaultsValue> &value) {                            \
             const auto decoded = value ? decode<Type>(*value) : Type(fallback);                             \
             if (decoded)                                                                                    \
                 settings.set##Name(normalized(*decoded));                                                   \
             if (!value)                                                                                     \
                 settings.save(#name, std::nullopt);                                                         \
             return decoded.has_value();                                                                     \
         },                                                                                                  \
         DefaultsValue(Stored<Type>::Value{}),                                                               \
         rulesByName().value(QStringLiteral(#name), ruleOfType(static_cast<const Type *>(nullptr)))});
    KESTRUNE_SETTINGS(KESTRUNE_ACCESS)
#undef KESTRUNE_ACCESS
    return all;
}

const NotchSettings::Access *NotchSettings::access(const QString &name)
{
    static const QMap<QString, Access> all = makeAccess();
    const auto found = all.constFind(name);
    return found == all.cend() ? nullptr : &*found;
}

bool NotchSettings::isEnabled(NotchTool tool) const { return tools().contains(tool); }

void NotchSettings::setEnabled(NotchTool tool, bool on)
{
    const NotchTools current = m_tools;
    if (current.contains(tool) == on)
        return;
    if (on) {
        setTools(casesWhere<NotchTool>(
            [&](NotchTool candidate) { return candidate == tool || current.contains(candidate); }));
    } else {
        NotchTools remaining = current;
        remaining.removeAll(tool);
        setTools(remaining);
    }
}

HomeColumn NotchSettings::column(HomeWidget widget) const
{
    return fromRawValue<HomeColumn>(homeColumns().value(rawValue(widget))).value_or(HomeColumn::hidden);
}

void NotchSettings::setColumn(HomeColumn column, HomeWidget widget)
{
    StringMap columns = m_homeColumns;
    columns.insert(rawValue(widget), rawValue(column));
    setHomeColumns(columns);
}

QList<HomeWidget> NotchSettings::widgets(HomeColumn wanted) const
{
    QList<HomeWidget> found;
    std::ranges::copy_if(homeOrder(), std::back_inserter(found),
                         [&](HomeWidget widget) { return column(widget) == wanted; });
    return found;
}

void NotchSettings::move(HomeWidget widget, int offset)
{
    HomeWidgets order = m_homeOrder;
    const auto from = order.indexOf(widget);
    if (from < 0)
        return;
    const auto to = std::clamp<qsizetype>(from + offset, 0, order.size() - 1);
    order.swapItemsAt(from, to);
    setHomeOrder(order);
}

void NotchSettings::resetHome()
{
    setHomeOrder(allCases<HomeWidget>());
    setHomeColumns(defaultHomeColumnStrings());
}

const QMap<HomeWidget, HomeColumn> &NotchSettings::defaultHomeColumns()
{
    static const QMap<HomeWidget, HomeColumn> columns{
        {HomeWidget::greeting, HomeColumn::left}, {HomeWidget::weather, HomeColumn::left},
        {HomeWidget::aiUsage, HomeColumn::left},  {HomeWidget::nowPlaying, HomeColumn::center},
        {HomeWidget::events, HomeColumn::right},  {HomeWidget::reminders, HomeColumn::right},
    };
    return columns;
}

StringMap NotchSettings::defaultHomeColumnStrings()
{
    StringMap strings;
    for (const auto &[widget, column] : defaultHomeColumns().asKeyValueRange())
        strings.insert(rawValue(widget), rawValue(column));
    return strings;
}

QStringList NotchSettings::defaultTickers()
{
    return {QStringLiteral("AAPL"), QStringLiteral("NVDA"), QStringLiteral("MSFT"), QStringLiteral("^GSPC")};
}

bool NotchSettings::localeUsesFahrenheit()
{
    return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
}

} // namespace Kestrune
