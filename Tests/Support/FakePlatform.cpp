#include "FakePlatform.h"

#include "ReaderHelper/Pictures/PictureDecoder.h"

#include <QBuffer>
#include <QFile>

namespace Kestrune::Fakes {

namespace {

struct PicturesHere : PictureReader
{
    ReadPicture read(const QByteArray &encoded, const PictureWish &wish) override
    {
        QBuffer buffer;
        buffer.setData(encoded);
        return buffer.open(QIODevice::ReadOnly) ? PictureDecoder::decode(buffer, wish) : ReadPicture();
    }
    ReadPicture readFile(int descriptor, const PictureWish &wish) override
    {
        QFile file;
        return file.open(descriptor, QIODevice::ReadOnly) && file.seek(0) ? PictureDecoder::decode(file, wish)
                                                                          : ReadPicture();
    }
};

} // namespace

std::shared_ptr<PictureReader> pictures() { return std::make_shared<PicturesHere>(); }

Platform::Platform(MemoryDefaults::Values stored, const QString &folder)
    : defaults(std::move(stored))
    , home(folder)
{}

Platform::~Platform() = default;

Kestrune::Platform Platform::ports(const RealPorts &real)
{
    const auto choose = [](auto *chosen, auto &fake) -> decltype(*chosen) { return chosen ? *chosen : fake; };
    windows.now = {&choose(real.displays, displays),
                   &choose(real.pointer, pointer),
                   &hotKeys,
                   &drags,
                   &choose(real.pasteboard, pasteboard),
                   &fullScreenWindows};
    return {.windows = windows,
            .clock = choose(real.clock, clock),
            .defaults = defaults,
            .suiteDefaults = suiteDefaults,
            .applications = applications,
            .players = choose(real.players, players),
            .loginItem = loginItem,
            .lock = lock,
            .sleep = sleep,
            .network = network,
            .notifications = notifications,
            .sounds = sounds,
            .workspace = workspace,
            .sharing = sharing,
            .captures = captures,
            .thumbnails = thumbnails,
            .pictures = Fakes::pictures(),
            .http = choose(real.http, http),
            .location = location,
            .scripts = choose(real.scripts, scripts),
            .host = host,
            .camera = camera,
            .calendars = choose(real.calendars, calendars),
            .home = home};
}

} // namespace Kestrune::Fakes
