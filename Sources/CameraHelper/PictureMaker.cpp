#include "PictureMaker.h"

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

struct Crop
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// The largest part in the middle of a picture that has the proportions of another.
Crop middle(const GstVideoInfo &from, const GstVideoInfo &to)
{
    const double pixel = static_cast<double>(from.par_n) / from.par_d; // its width over its height
    const double wanted = static_cast<double>(to.width) / to.height;
    const double width = std::min<double>(from.width, from.height * wanted / pixel);
    const double height = std::min<double>(from.height, from.width * pixel / wanted);
    Crop crop{0, 0, std::max(1, static_cast<int>(std::lround(width))),
              std::max(1, static_cast<int>(std::lround(height)))};
    crop.x = (from.width - crop.width) / 2;
    crop.y = (from.height - crop.height) / 2;
    return crop;
}

GstVideoConverter *makeConverter(const GstVideoInfo &from, const GstVideoInfo &to)
{
    const Crop crop = middle(from, to);
    GstStructure *options = gst_structure_new(
        "options", GST_VIDEO_CONVERTER_OPT_SRC_X, G_TYPE_INT, crop.x, GST_VIDEO_CONVERTER_OPT_SRC_Y,
        G_TYPE_INT, crop.y, GST_VIDEO_CONVERTER_OPT_SRC_WIDTH, G_TYPE_INT, crop.width,
        GST_VIDEO_CONVERTER_OPT_SRC_HEIGHT, G_TYPE_INT, crop.height, GST_VIDEO_CONVERTER_OPT_RESAMPLER_METHOD,
        GST_TYPE_VIDEO_RESAMPLER_METHOD, GST_VIDEO_RESAMPLER_METHOD_LINEAR, nullptr);
    GstVideoInfo source = from;
    GstVideoInfo target = to;
    return gst_video_converter_new(&source, &target, options);
}

std::uint32_t faded(std::uint32_t pixel, double share)
{
    std::uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8)
        result |= static_cast<std::uint32_t>(((pixel >> shift) & 0xFFU) * share) << shift;
    return result;
}

void roundCorners(std::uint32_t *pixels, const CameraWire::Order &order)
{
    const double radius =
        std::min({static_cast<double>(order.radius), order.width / 2.0, order.height / 2.0});
    const int side = static_cast<int>(std::ceil(radius));
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double distance = std::hypot(radius - x - 0.5, radius - y - 0.5);
            const double inside = std::clamp(radius - distance + 0.5, 0.0, 1.0);
            const int right = order.width - 1 - x;
            std::uint32_t *top = pixels + std::ptrdiff_t{y} * order.width;
            std::uint32_t *bottom = pixels + std::ptrdiff_t{order.height - 1 - y} * order.width;
            for (std::uint32_t *pixel : {top + x, top + right, bottom + x, bottom + right})
                *pixel = faded(*pixel, inside);
        }
    }
}

} // namespace

PictureMaker::~PictureMaker()
{
    if (m_converter)
        gst_video_converter_free(m_converter);
}

bool PictureMaker::make(GstSample *sample, const CameraWire::Order &order, std::uint32_t *pixels)
{
    GstCaps *const caps = gst_sample_get_caps(sample);
    GstVideoInfo from;
    if (!caps || !gst_video_info_from_caps(&from, caps))
        return false;
    const bool known = m_converter && gst_caps_is_equal(m_from.get(), caps) && m_to.width == order.width &&
                       m_to.height == order.height;
    if (!known) {
        if (m_converter)
            gst_video_converter_free(m_converter);
        constexpr auto format =
            G_BYTE_ORDER == G_LITTLE_ENDIAN ? GST_VIDEO_FORMAT_BGRA : GST_VIDEO_FORMAT_ARGB;
        gst_video_info_set_format(&m_to, format, static_cast<guint>(order.width),
                                  static_cast<guint>(order.height));
        m_to.fps_n = from.fps_n;
        m_to.fps_d = from.fps_d;
        m_converter = makeConverter(from, m_to);
        m_from.reset(gst_caps_ref(caps));
    }
    if (!convert(from, gst_sample_get_buffer(sample), pixels))
        return false;
    for (int y = 0; y < order.height; ++y) {
        std::uint32_t *const row = pixels + std::ptrdiff_t{y} * order.width;
        std::reverse(row, row + order.width);
    }
    roundCorners(pixels, order);
    return true;
}

bool PictureMaker::convert(const GstVideoInfo &from, GstBuffer *buffer, std::uint32_t *pixels)
{
    const Handle<GstBuffer> target(gst_buffer_new_wrapped_full(static_cast<GstMemoryFlags>(0), pixels,
                                                               m_to.size, 0, m_to.size, nullptr, nullptr));
    GstVideoInfo source = from;
    GstVideoFrame given;
    GstVideoFrame made;
    if (!m_converter || !gst_video_frame_map(&given, &source, buffer, GST_MAP_READ))
        return false;
    const bool mapped = gst_video_frame_map(&made, &m_to, target.get(), GST_MAP_WRITE);
    if (mapped) {
        gst_video_converter_frame(m_converter, &given, &made);
        gst_video_frame_unmap(&made);
    }
    gst_video_frame_unmap(&given);
    return mapped;
}

} // namespace Kestrune
