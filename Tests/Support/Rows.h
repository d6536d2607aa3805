#pragma once

#include <QString>
#include <QTest>

#include <array>
#include <tuple>
#include <utility>

constexpr std::array kColumnNames{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};

/// What a cell is given as: a text may be a literal, too.
template <typename Value>
struct Cell
{
    using Type = Value;
};
struct Text : QString
{
    Text(const char *literal)
        : QString(QString::fromUtf8(literal))
    {}
    Text(const QString &text)
        : QString(text)
    {}
};
template <>
struct Cell<QString>
{
    using Type = Text;
};

/// In the `_data` of a test: what its rows hold. They are made with QTest::newRow, or with what this returns:
/// `const auto row = columns<int, QString>(); row("name", 7, "text");`.
template <typename... Values>
auto columns()
{
    std::size_t column = 0;
    (QTest::addColumn<Values>(kColumnNames.at(column++)), ...);
    return [](const char *name, const typename Cell<Values>::Type &...values) {
        QTestData &row = QTest::newRow(name);
        ((row << static_cast<const Values &>(values)), ...);
    };
}

/// The same for a single yes or no, with a row for either.
inline void noAndYes(const char *no, const char *yes)
{
    const auto row = columns<bool>();
    row(no, false);
    row(yes, true);
}

/// And for a text, with a row for each that is named by it.
inline void texts(std::initializer_list<const char *> all)
{
    const auto row = columns<QString>();
    for (const char *text : all)
        row(text, text);
}

template <typename Value>
Value fetchedFrom(std::size_t column)
{
    return *static_cast<Value *>(QTest::qData(kColumnNames.at(column), qMetaTypeId<Value>()));
}

/// In the test: its row, of the same columns.
template <typename... Values>
std::tuple<Values...> fetched()
{
    const auto fetch = []<std::size_t... Columns>(std::index_sequence<Columns...>)
    {
        return std::tuple<Values...>(fetchedFrom<Values>(Columns)...);
    };
    return fetch(std::index_sequence_for<Values...>());
}
