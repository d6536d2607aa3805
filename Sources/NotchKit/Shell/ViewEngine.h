#pragma once

#include "SlicedIncubation.h"

#include <QQmlEngine>

namespace Kestrune {

/// The engine of all views. They have no way to the network, whatever the texts and addresses say that they
/// are given; what comes from there comes by the ports. What they make ahead is made in slices.
class ViewEngine : public QQmlEngine
{
    Q_OBJECT

public:
    ViewEngine();
    ~ViewEngine() override;

private:
    SlicedIncubation m_incubation;
};

} // namespace Kestrune
