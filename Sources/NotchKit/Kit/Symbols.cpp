#include "Symbols.h"

#include <QFontDatabase>
#include <QHash>

namespace Kestrune {

namespace {

/// Code points in the private use area of the Material Design Icons font.
const QHash<QString, char16_t> &table()
{
    static const QHash<QString, char16_t> glyphs{
        {QStringLiteral("airplayaudio"), u'\uF01F'},
        {QStringLiteral("arrow.clockwise"), u'\uF450'},
        {QStringLiteral("arrow.counterclockwise"), u'\uF459'},
        {QStringLiteral("backward.end.fill"), u'\uF4AE'},
        {QStringLiteral("backward.fill"), u'\uF45F'},
        {QStringLiteral("battery.100.bolt"), u'\uF085'},
        {QStringLiteral("battery.75"), u'\uF081'},
        {QStringLiteral("calendar"), u'\uF0ED'},
        {QStringLiteral("camera"), u'\uF100'},
        {QStringLiteral("camera.viewfinder"), u'\uF2F1'},
        {QStringLiteral("chart.xyaxis.line"), u'\uF12A'},
        {QStringLiteral("checkmark.circle.fill"), u'\uF5E0'},
        {QStringLiteral("checklist"), u'\uF5C7'},
        {QStringLiteral("chevron.down"), u'\uF140'},
        {QStringLiteral("chevron.up"), u'\uF143'},
        {QStringLiteral("circle"), u'\uF130'},
        {QStringLiteral("cloud.bolt.rain.fill"), u'\uF593'},
        {QStringLiteral("cloud.drizzle.fill"), u'\uF597'},
        {QStringLiteral("cloud.fill"), u'\uF15F'},
        {QStringLiteral("cloud.fog.fill"), u'\uF591'},
        {QStringLiteral("cloud.rain.fill"), u'\uF596'},
        {QStringLiteral("cloud.snow.fill"), u'\uF598'},
        {QStringLiteral("cloud.sun"), u'\uF595'},
        {QStringLiteral("cloud.sun.fill"), u'\uF595'},
        {QStringLiteral("cpu"), u'\uF61A'},
        {QStringLiteral("doc"), u'\uF224'},
        {QStringLiteral("doc.on.clipboard"), u'\uF14E'},
        {QStringLiteral("doc.text"), u'\uF219'},
        {QStringLiteral("doc.zipper"), u'\uF5C4'},
        {QStringLiteral("exclamationmark.circle.fill"), u'\uF028'},
        {QStringLiteral("film"), u'\uF22B'},
        {QStringLiteral("doc.richtext"), u'\uF225'},
        {QStringLiteral("folder"), u'\uF24B'},
        {QStringLiteral("forward.fill"), u'\uF211'},
        {QStringLiteral("gauge.with.dots.needle.33percent"), u'\uF29A'},
        {QStringLiteral("gearshape"), u'\uF493'},
        {QStringLiteral("hare"), u'\uF46E'},
        {QStringLiteral("internaldrive"), u'\uF2CA'},
        {QStringLiteral("link"), u'\uF339'},
        {QStringLiteral("location"), u'\uF5CD'},
        {QStringLiteral("magnifyingglass"), u'\uF349'},
        {QStringLiteral("memorychip"), u'\uF35B'},
        {QStringLiteral("minus"), u'\uF374'},
        {QStringLiteral("music.note"), u'\uF387'},
        {QStringLiteral("note.text"), u'\uF39E'},
        {QStringLiteral("pause.fill"), u'\uF3E4'},
        {QStringLiteral("pencil"), u'\uF3EB'},
        {QStringLiteral("photo"), u'\uF2E9'},
        {QStringLiteral("pin"), u'\uF403'},
        {QStringLiteral("pin.fill"), u'\uF403'},
        {QStringLiteral("play.fill"), u'\uF40A'},
        {QStringLiteral("playpause"), u'\uF40E'},
        {QStringLiteral("plus"), u'\uF415'},
        {QStringLiteral("rectangle.topthird.inset.filled"), u'\uF5AF'},
        {QStringLiteral("sparkle"), u'\uF4CE'},
        {QStringLiteral("sparkles"), u'\uF068'},
        {QStringLiteral("square.grid.2x2"), u'\uF56E'},
        {QStringLiteral("square.grid.2x2.fill"), u'\uF570'},
        {QStringLiteral("sun.max.fill"), u'\uF599'},
        {QStringLiteral("terminal"), u'\uF18D'},
        {QStringLiteral("text.alignleft"), u'\uF262'},
        {QStringLiteral("timer"), u'\uF51B'},
        {QStringLiteral("tortoise"), u'\uF583'},
        {QStringLiteral("trash"), u'\uF1C0'},
        {QStringLiteral("tray.and.arrow.down"), u'\uF2FB'},
        {QStringLiteral("tray.and.arrow.down.fill"), u'\uF1DA'},
        {QStringLiteral("video.slash"), u'\uF568'},
        {QStringLiteral("xmark.circle.fill"), u'\uF159'},
    };
    return glyphs;
}

} // namespace

QString Symbols::family()
{
    static const QString name = [] {
        const int font = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/symbols.ttf"));
        return QFontDatabase::applicationFontFamilies(font).value(0);
    }();
    return name;
}

QStringList Symbols::names() { return table().keys(); }

QString Symbols::glyph(const QString &name)
{
    const auto found = table().constFind(name);
    return found == table().cend() ? QString() : QString(QChar(*found));
}

} // namespace Kestrune
