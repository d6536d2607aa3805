#include "TrayIcon.h"

#include "NotchKit/Kit/Symbols.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace Kestrune {

namespace {

constexpr std::array kSizes{16, 22, 24, 32, 48, 64};
constexpr QColor kLight{0xf2, 0xf2, 0xf4};
constexpr QColor kEdge{0, 0, 0, 0x90};

/// The symbol in the middle of a square of `size` pixels.
QPainterPath symbolPath(int size)
{
    QFont font(Symbols::family());
    font.setPixelSize(size);
    QPainterPath path;
    path.addText({}, font, Symbols::glyph(QStringLiteral("rectangle.topthird.inset.filled")));
    path.translate(QPointF(size, size) / 2 - path.boundingRect().center());
    return path;
}

QImage draw(int size)
{
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = symbolPath(size);
    painter.strokePath(path, QPen(kEdge, size / 11.0));
    painter.fillPath(path, kLight);
    return icon;
}

} // namespace

QList<QImage> trayIcon()
{
    QList<QImage> icons;
    for (const int size : kSizes)
        icons.append(draw(size));
    return icons;
}

} // namespace Kestrune
