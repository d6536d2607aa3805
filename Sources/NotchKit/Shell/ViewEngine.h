#pragma once

#include <QQmlEngine>

namespace Kestrune {

/// The engine of all views. They have no way to the network, whatever the texts and addresses say that they
/// are given; what comes from there comes by the ports.
class ViewEngine : public QQmlEngine
{
    Q_OBJECT

public:
    ViewEngine();
};

} // namespace Kestrune
