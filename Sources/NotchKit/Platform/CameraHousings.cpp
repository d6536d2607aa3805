#include "CameraHousings.h"

#include "UserDefaults.h"

#include <QRegularExpression>

#include <cstdio>
#include <utility>

namespace Kestrune {

CameraHousings::CameraHousings(const UserDefaults &defaults)
    : m_defaults(defaults)
{
    reload();
}

bool CameraHousings::reload()
{
    const StringMap described = m_defaults.value<StringMap>(QString::fromLatin1(key)).value_or(StringMap());
    QMap<QString, QSizeF> sizes;
    for (const auto &[output, description] : described.asKeyValueRange()) {
        if (const auto size = parse(description)) {
            sizes.insert(output, *size);
        } else {
            std::fprintf(stderr, "Kestrune: the camera housing of %s must read WIDTHxHEIGHT, not \"%s\"\n",
                         qPrintable(output), qPrintable(description));
        }
    }
    return std::exchange(m_sizes, sizes) != sizes;
}

Display CameraHousings::describe(const QString &name, const QRectF &frame) const
{
    Display display{name, frame, 0, std::nullopt, std::nullopt};
    const QSizeF housing = m_sizes.value(name);
    const double beside = (frame.width() - housing.width()) / 2;
    if (housing.isEmpty() || beside <= 0 || housing.height() >= frame.height())
        return display;
    const double bottom = frame.y() + frame.height() - housing.height();
    display.safeAreaTop = housing.height();
    display.auxiliaryTopLeft = QRectF(frame.x(), bottom, beside, housing.height());
    display.auxiliaryTopRight = QRectF(frame.x() + frame.width() - beside, bottom, beside, housing.height());
    return display;
}

std::optional<QSizeF> CameraHousings::parse(const QString &description)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,4}(?:\\.\\d+)?)x(\\d{1,4}(?:\\.\\d+)?)$"));
    const auto match = form.match(description);
    const QSizeF size(match.captured(1).toDouble(), match.captured(2).toDouble());
    return match.hasMatch() && !size.isEmpty() ? std::optional(size) : std::nullopt;
}

} // namespace Kestrune
