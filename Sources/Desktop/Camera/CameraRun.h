#pragma once

#include "CameraWire.h"

#include <QImage>
#include <QObject>
#include <QProcess>

#include <functional>
#include <memory>

namespace Kestrune {

class SharedPictures;

/// The camera from a start to a stop: one process of the helper. Lives on the camera's thread; its end gives
/// the camera back before it returns.
class CameraRun : public QObject
{
    Q_OBJECT

public:
    /// Called on the camera's thread.
    struct Reports
    {
        std::function<void(const QImage &)> picture;
        std::function<void()> lost; ///< Called once, from the event loop.
    };

    /// `camera` is the identifier of the one that is wanted; empty for the default one.
    CameraRun(const QString &program, const QString &camera, Reports reports, QObject *parent);
    ~CameraRun() override;

    /// Has the helper make a picture. At most one order is under way.
    void order(const CameraWire::Order &order);

private:
    void start(const QString &program, const QString &camera);
    void takeReply();
    void lose();

    Reports m_reports;
    std::shared_ptr<SharedPictures> m_pictures;
    CameraWire::Order m_order{};
    QProcess m_helper;
};

} // namespace Kestrune
