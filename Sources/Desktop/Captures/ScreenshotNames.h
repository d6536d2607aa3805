#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace Kestrune {

/// What the names of files tell: which of them screenshot tools give, in the languages they speak.
class ScreenshotNames
{
public:
    ScreenshotNames() = default;

    /// Also knows what tools were told to call their files: patterns as strftime takes them, without the
    /// file's type ("shot %F %H.%M").
    explicit ScreenshotNames(const QStringList &patterns);

    /// Whether the name ends as a picture's does that a screenshot can be: png, jpg, jpeg or webp.
    static bool isPicture(const QString &name);

    /// Whether a picture's name is one that a screenshot tool gives.
    bool isScreenshot(const QString &name) const;

    /// Whether the name of a folder says that it holds screenshots ("Screenshots", "Bildschirmfotos").
    static bool isScreenshotFolder(const QString &name);

private:
    QList<QRegularExpression> m_patterns;
};

} // namespace Kestrune
