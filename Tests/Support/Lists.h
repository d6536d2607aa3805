#pragma once

#include <QList>

#include <functional>

/// What `part`, a member or a function, gives of each.
template <typename List, typename Part>
auto each(const List &list, const Part &part)
{
    QList<std::decay_t<std::invoke_result_t<Part, decltype(*list.begin())>>> parts;
    for (const auto &one : list)
        parts.append(std::invoke(part, one));
    return parts;
}
