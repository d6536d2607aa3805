#include "LaunchRequest.h"

namespace Kestrune {

LaunchRequest LaunchRequest::parse(const QStringList &arguments)
{
    const auto open = arguments.indexOf(QStringLiteral("--open"));
    if (open < 0)
        return {};
    return {true, fromRawValue<NotchTool>(arguments.value(open + 1))};
}

} // namespace Kestrune
