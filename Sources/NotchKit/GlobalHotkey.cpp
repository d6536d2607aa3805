#include "GlobalHotkey.h"

#include <QCoreApplication>

#include <limits>
#include <map>

namespace Kestrune {

namespace {

constexpr quint32 kSignature = 'K' << 24 | 'R' << 16 | 'U' << 8 | 'N';

struct Actions
{
    GlobalHotkey::Action pressed;
    GlobalHotkey::BindingAction bound;
};

std::map<quint32, Actions> &handlers()
{
    static std::map<quint32, Actions> table;
    return table;
}

void run(quint32 id)
{
    const auto found = handlers().find(id);
    if (found == handlers().end())
        return;
    const auto action = found->second.pressed; // The action may unregister its own hot key.
    action();
}

void pressed(HotKeyIdentity identity)
{
    if (identity.signature != kSignature)
        return;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [id = identity.id] { run(id); }, Qt::QueuedConnection);
}

void bindingChanged(HotKeyIdentity identity, const HotKeyBinding &binding)
{
    const auto found = handlers().find(identity.id);
    if (identity.signature == kSignature && found != handlers().end())
        found->second.bound(binding);
}

quint32 takeId()
{
    static quint32 nextId = 1;
    if (nextId == std::numeric_limits<quint32>::max())
        qFatal("no hot-key numbers are left");
    return nextId++;
}

} // namespace

std::unique_ptr<GlobalHotkey> GlobalHotkey::make(HotKeys &hotKeys, quint32 keyCode, quint32 modifiers,
                                                 Action action, BindingAction bound, HotKeyPurpose purpose)
{
    const HotKeyIdentity identity{kSignature, takeId(), purpose};
    hotKeys.installHandler(pressed);
    hotKeys.installBindingHandler(bindingChanged);
    if (!hotKeys.registerHotKey(keyCode, modifiers, identity))
        return nullptr;
    handlers().emplace(identity.id, Actions{std::move(action), std::move(bound)});
    return std::unique_ptr<GlobalHotkey>(new GlobalHotkey(hotKeys, identity));
}

GlobalHotkey::GlobalHotkey(HotKeys &hotKeys, HotKeyIdentity identity)
    : m_hotKeys(&hotKeys)
    , m_identity(identity)
{}

GlobalHotkey::~GlobalHotkey() { unregister(); }

void GlobalHotkey::unregister()
{
    if (!m_hotKeys)
        return;
    m_hotKeys->unregisterHotKey(m_identity);
    m_hotKeys = nullptr;
    handlers().erase(m_identity.id);
}

} // namespace Kestrune
