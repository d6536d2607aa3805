#pragma once

#include "Handles.h"

#include <functional>
#include <string>

namespace Kestrune {

/// A camera, as GStreamer finds it (PipeWire's cameras, else those of Video4Linux). It is on from `start` to
/// its end.
class Camera
{
public:
    /// Opens it without turning it on: that of the identifier `wanted`, else the default one. False where
    /// there is none that can be used within seconds. Hangs where PipeWire does.
    bool open(const std::string &wanted);
    bool start();

    /// The cameras that can be used, a line each: its identifier, a tab and its name.
    std::string list();

    /// The newest picture that has not been taken yet, or the next one. Nothing when the camera is lost: it
    /// failed, gave no picture for seconds, or `isPointless` said so meanwhile.
    Handle<GstSample> next(const std::function<bool()> &isPointless);

    ~Camera();
    Camera() = default;
    Camera(const Camera &) = delete;
    Camera &operator=(const Camera &) = delete;

private:
    void look(const std::string &wanted);
    bool watch();
    bool find(const std::string &wanted);
    bool hasFailed() const;
    bool isPulledOut() const;

    /// Never ended: some of PipeWire's versions corrupt memory when it stops to look.
    GstDeviceMonitor *const m_monitor = gst_device_monitor_new();
    Handle<GstDevice> m_device;
    Handle<GstCaps> m_format; ///< What is asked of the device.
    Handle<GstElement> m_pipeline;
    Handle<GstElement> m_sink;
    bool m_hasGivenPictures = false;
};

} // namespace Kestrune
