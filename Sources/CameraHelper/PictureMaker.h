#pragma once

#include "Desktop/Camera/CameraWire.h"
#include "Handles.h"

#include <gst/video/video.h>

#include <optional>

namespace Kestrune {

/// Makes the pictures of orders from what the camera gives.
class PictureMaker
{
public:
    PictureMaker() = default;
    ~PictureMaker();
    PictureMaker(const PictureMaker &) = delete;
    PictureMaker &operator=(const PictureMaker &) = delete;

    /// Fills `pixels` with the middle of the sample's picture, scaled and flipped left to right, its corners
    /// rounded. False when the sample cannot be read.
    bool make(GstSample *sample, const CameraWire::Order &order, std::uint32_t *pixels);

private:
    bool convert(const GstVideoInfo &from, GstBuffer *buffer, std::uint32_t *pixels);

    GstVideoConverter *m_converter = nullptr; ///< For the formats below.
    Handle<GstCaps> m_from;
    GstVideoInfo m_to{};
};

} // namespace Kestrune
