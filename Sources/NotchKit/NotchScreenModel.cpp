#include "NotchScreenModel.h"

namespace Kestrune {

NotchScreenModel::NotchScreenModel(const NotchGeometry &geometry, QObject *parent)
    : QObject(parent)
    , m_geometry(geometry)
{}

} // namespace Kestrune
