#pragma once

#include <gst/gst.h>

#include <memory>

namespace Kestrune {

/// Releases what GStreamer hands out.
struct Release
{
    void operator()(GstCaps *caps) const { gst_caps_unref(caps); }
    void operator()(GstSample *sample) const { gst_sample_unref(sample); }
    void operator()(GstMessage *message) const { gst_message_unref(message); }
    void operator()(GstBuffer *buffer) const { gst_buffer_unref(buffer); }
    template <typename Object>
    void operator()(Object *object) const
    {
        gst_object_unref(object);
    }
};

template <typename Type>
using Handle = std::unique_ptr<Type, Release>;

} // namespace Kestrune
