#pragma once

#include <QObject>

#include <functional>
#include <memory>

/// Test classes register themselves with REGISTER_TEST(Class) in their source; one executable holds many
/// of them. `program` runs all, `program Class...` only those, `program --list` names them.
namespace TestRegistry {

using Factory = std::function<std::unique_ptr<QObject>()>;

/// Adds a test class; called by REGISTER_TEST before main.
bool add(const char *name, Factory factory);

} // namespace TestRegistry

#define REGISTER_TEST(Class)                                                                                 \
    static const bool registered##Class = TestRegistry::add(#Class, [] { return std::make_unique<Class>(); })
