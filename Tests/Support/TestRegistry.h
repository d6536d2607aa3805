#pragma once

#include <QObject>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <tuple>
#include <utility>

namespace Kestrune {}

// Every source of a test speaks of these.
using namespace Kestrune;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Test classes register themselves with REGISTER_TEST(Class) in their source; one executable holds many
/// of them. `program` runs all, `program Class...` only those, `program --list` names them.
namespace TestRegistry {

using Factory = std::function<std::unique_ptr<QObject>()>;

/// Adds a test class; called by REGISTER_TEST before main.
bool add(const char *name, Factory factory);

} // namespace TestRegistry

constexpr std::array kColumnNames{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};

/// In the `_data` of a test: what its rows, made with QTest::newRow, hold.
template <typename... Values>
void columns()
{
    std::size_t column = 0;
    (QTest::addColumn<Values>(kColumnNames.at(column++)), ...);
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

// A condition is waited for as long as the slowest machine may need; a test that passes waits no longer than
// it must.
#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), 60'000)
#define QTRY_VERIFY2(condition, message) QTRY_VERIFY2_WITH_TIMEOUT((condition), (message), 60'000)
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), 60'000)

#define REGISTER_TEST(Class)                                                                                 \
    static const bool registered##Class = TestRegistry::add(#Class, [] { return std::make_unique<Class>(); })
