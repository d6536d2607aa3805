#include "Camera.h"

#include "CameraWalls.h"

#include <gst/app/gstappsink.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace Kestrune {

namespace {

/// What is asked of the camera, best first: enough for a picture a few hundred points wide, at a low cost.
constexpr std::array kWishes{
    "video/x-raw, width=640, height=480, framerate=[15/1,60/1]",
    "video/x-raw, width=[480,1280], height=[270,960], framerate=[15/1,60/1]",
    "image/jpeg, width=640, height=480, framerate=[15/1,60/1]",
    "image/jpeg, width=[480,1280], height=[270,960], framerate=[15/1,60/1]",
    "video/x-raw",
    "image/jpeg",
};

constexpr GstClockTime kSlice = 100 * GST_MSECOND;
constexpr gint64 kLongestLook = 2 * G_TIME_SPAN_SECOND; // A service that just began lists cameras bit by bit.
constexpr GstClockTime kLongestStart = 10 * GST_SECOND; // Some cameras first measure the light.
constexpr GstClockTime kLongestPause = 3 * GST_SECOND;

constexpr gint64 kBesideFirst = G_TIME_SPAN_SECOND / 2; // For those that come after the first one.
constexpr std::size_t kMostListed = 16;
constexpr std::size_t kLongestName = 200; // Bytes.

/// What others made, as part of a line.
std::string plain(const char *text)
{
    std::string name = text ? text : "";
    name.resize(std::min(name.size(), kLongestName));
    std::ranges::replace_if(
        name, [](unsigned char c) { return c < ' ' || c == 0x7f; }, ' ');
    return name;
}

std::string nameOf(GstDevice *device)
{
    gchar *const name = gst_device_get_display_name(device);
    std::string text = plain(name);
    g_free(name);
    return text;
}

/// The same whenever it is plugged in, as far as that can be told.
std::string identifierOf(GstDevice *device)
{
    std::string id;
    GstStructure *properties = gst_device_get_properties(device);
    for (const char *const key : {"node.name", "api.v4l2.path", "device.path"}) {
        if (properties && id.empty())
            id = plain(gst_structure_get_string(properties, key));
    }
    if (properties)
        gst_structure_free(properties);
    return id.empty() ? nameOf(device) : id;
}

bool isDefault(GstDevice *device)
{
    GstStructure *properties = gst_device_get_properties(device);
    gboolean is = FALSE;
    if (properties) {
        gst_structure_get_boolean(properties, "is-default", &is);
        gst_structure_free(properties);
    }
    return is;
}

/// The first wish that the camera fulfils; nothing when it fulfils none.
Handle<GstCaps> chooseFormat(GstDevice *device)
{
    const Handle<GstCaps> offered(gst_device_get_caps(device));
    for (const char *const text : kWishes) {
        const Handle<GstCaps> wish(gst_caps_from_string(text));
        Handle<GstCaps> both(offered ? gst_caps_intersect(offered.get(), wish.get()) : nullptr);
        if (both && !gst_caps_is_empty(both.get()))
            return both;
    }
    return {};
}

bool isJpeg(const GstCaps *format)
{
    return gst_structure_has_name(gst_caps_get_structure(format, 0), "image/jpeg");
}

/// What comes first through here is the first that a stranger may have made: it goes on behind walls only.
GstPadProbeReturn guardFirst(GstPad *pad, GstPadProbeInfo *, void *)
{
    if (CameraWalls::raiseBeforePictures())
        return GST_PAD_PROBE_REMOVE;
    const Handle<GstElement> source(gst_pad_get_parent_element(pad));
    GST_ELEMENT_ERROR(source.get(), RESOURCE, FAILED, ("not without walls"), (nullptr));
    return GST_PAD_PROBE_DROP;
}

} // namespace

Camera::~Camera()
{
    if (m_pipeline)
        gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
}

void Camera::look(const std::string &wanted)
{
    const auto rank = [&](GstDevice *device) {
        return !wanted.empty() && identifierOf(device) == wanted ? 2 : int(isDefault(device));
    };
    GList *const devices = gst_device_monitor_get_devices(m_monitor);
    for (const GList *entry = devices; entry; entry = entry->next) {
        auto *const device = GST_DEVICE(entry->data);
        if (m_device && rank(device) <= rank(m_device.get()))
            continue;
        if (Handle<GstCaps> format = chooseFormat(device)) {
            m_device.reset(GST_DEVICE(gst_object_ref(device)));
            m_format = std::move(format);
        }
    }
    g_list_free_full(devices, gst_object_unref);
}

bool Camera::watch()
{
    gst_device_monitor_add_filter(m_monitor, "Video/Source", nullptr);
    return gst_device_monitor_start(m_monitor);
}

bool Camera::find(const std::string &wanted)
{
    if (!watch())
        return false;
    const Handle<GstBus> bus(gst_device_monitor_get_bus(m_monitor));
    const gint64 begin = g_get_monotonic_time();
    const auto isEnough = [&] {
        return m_device && (wanted.empty() || identifierOf(m_device.get()) == wanted ||
                            g_get_monotonic_time() > begin + kBesideFirst);
    };
    for (look(wanted); !isEnough() && g_get_monotonic_time() < begin + kLongestLook; look(wanted))
        const Handle<GstMessage> news(gst_bus_timed_pop(bus.get(), kSlice));
    return m_device != nullptr;
}

std::string Camera::list()
{
    std::string lines;
    if (!watch())
        return lines;
    g_usleep(kBesideFirst);
    GList *const devices = gst_device_monitor_get_devices(m_monitor);
    std::size_t count = 0;
    for (const GList *entry = devices; entry && count < kMostListed; entry = entry->next) {
        auto *const device = GST_DEVICE(entry->data);
        if (!chooseFormat(device))
            continue;
        lines += identifierOf(device) + '\t' + nameOf(device) + '\n';
        ++count;
    }
    g_list_free_full(devices, gst_object_unref);
    return lines;
}

bool Camera::open(const std::string &wanted)
{
    GstElement *const source = find(wanted) ? gst_device_create_element(m_device.get(), nullptr) : nullptr;
    if (!source)
        return false;
    m_pipeline.reset(gst_pipeline_new(nullptr));
    // Else a camera that is pulled out takes the memory of a picture that is still read.
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(source), "always-copy"))
        g_object_set(source, "always-copy", TRUE, nullptr);
    gst_bin_add(GST_BIN(m_pipeline.get()), source);
    if (const Handle<GstPad> pad(gst_element_get_static_pad(source, "src")); pad)
        gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, guardFirst, nullptr, nullptr);
    else
        return false;
    const std::string rest = std::string("capsfilter name=format ! ") +
                             (isJpeg(m_format.get()) ? "jpegdec ! " : "") +
                             "appsink name=sink caps=video/x-raw max-buffers=1 drop=true sync=false";
    GstElement *const bin = gst_parse_bin_from_description(rest.c_str(), TRUE, nullptr);
    if (!bin)
        return false;
    gst_bin_add(GST_BIN(m_pipeline.get()), bin);
    const Handle<GstElement> filter(gst_bin_get_by_name(GST_BIN(bin), "format"));
    g_object_set(filter.get(), "caps", m_format.get(), nullptr);
    m_sink.reset(gst_bin_get_by_name(GST_BIN(bin), "sink"));
    return gst_element_link(source, bin) &&
           gst_element_set_state(m_pipeline.get(), GST_STATE_READY) != GST_STATE_CHANGE_FAILURE;
}

bool Camera::start()
{
    return gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
}

bool Camera::hasFailed() const
{
    const Handle<GstBus> bus(gst_element_get_bus(m_pipeline.get()));
    const auto bad = static_cast<GstMessageType>(GST_MESSAGE_ERROR | GST_MESSAGE_EOS);
    return Handle<GstMessage>(gst_bus_pop_filtered(bus.get(), bad)) != nullptr;
}

bool Camera::isPulledOut() const
{
    const Handle<GstBus> bus(gst_device_monitor_get_bus(m_monitor));
    while (const Handle<GstMessage> message{gst_bus_pop(bus.get())}) {
        if (GST_MESSAGE_TYPE(message.get()) != GST_MESSAGE_DEVICE_REMOVED)
            continue;
        GstDevice *removed = nullptr;
        gst_message_parse_device_removed(message.get(), &removed);
        if (Handle<GstDevice>(removed) == m_device)
            return true;
    }
    return false;
}

Handle<GstSample> Camera::next(const std::function<bool()> &isPointless)
{
    const GstClockTime longest = m_hasGivenPictures ? kLongestPause : kLongestStart;
    for (GstClockTime waited = 0; waited < longest; waited += kSlice) {
        Handle<GstSample> sample(gst_app_sink_try_pull_sample(GST_APP_SINK(m_sink.get()), kSlice));
        if (sample) {
            m_hasGivenPictures = true;
            return sample;
        }
        if (hasFailed() || isPulledOut() || isPointless())
            break;
    }
    return {};
}

} // namespace Kestrune
