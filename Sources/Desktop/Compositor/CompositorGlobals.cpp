#include "CompositorGlobals.h"

#include "CompositorConnection.h"

#include <QDeadlineTimer>

#include <memory>

namespace Kestrune {

namespace {

constexpr int kPatience = 2000; // ms

void add(void *names, wl_registry *, uint32_t, const char *interface, uint32_t)
{
    static_cast<QSet<QByteArray> *>(names)->insert(interface);
}

void ignoreRemoval(void *, wl_registry *, uint32_t) {}

} // namespace

QSet<QByteArray> compositorGlobals(const QByteArray &display)
{
    static constexpr wl_registry_listener listener{add, ignoreRemoval};
    CompositorConnection connection(display);
    if (!connection.isAlive())
        return {};
    QSet<QByteArray> names;
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry(
        wl_display_get_registry(connection.get()), &wl_registry_destroy);
    wl_registry_add_listener(registry.get(), &listener, &names);
    bool answered = false;
    connection.whenCarriedOut([&answered] { answered = true; });
    std::vector<pollfd> nothingElse;
    const QDeadlineTimer end(kPatience);
    while (connection.isAlive() && !answered && !end.hasExpired()) {
        connection.sleep(nothingElse, static_cast<int>(end.remainingTime()));
        connection.dispatch();
    }
    return answered ? names : QSet<QByteArray>();
}

} // namespace Kestrune
