#include "ToolModel.h"

namespace Kestrune {

ToolModel::ToolModel(NotchTool tool, QObject *parent)
    : QObject(parent)
    , m_tool(tool)
{}

} // namespace Kestrune
