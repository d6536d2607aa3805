#pragma once

#include "Support/Files.h"
#include "Support/Rows.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QObject>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

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
