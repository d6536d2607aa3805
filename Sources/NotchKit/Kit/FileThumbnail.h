#pragma once

#include "Async/Scope.h"
#include "NotchKit/NotchSurroundings.h"

#include <QImage>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// The small image of one file, asked for as soon as the file is known: where views show many files, only
/// those on screen cost anything.
class FileThumbnail : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kestrune::NotchSurroundings *surroundings MEMBER m_surroundings NOTIFY askedChanged REQUIRED)
    /// Empty for none.
    Q_PROPERTY(QString path MEMBER m_path NOTIFY askedChanged)
    /// Null until it is made, and for what is no picture.
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)
    Q_PROPERTY(bool isReady READ isReady NOTIFY imageChanged)

public:
    explicit FileThumbnail(QObject *parent = nullptr);

    const QImage &image() const { return m_image; }
    bool isReady() const { return !m_image.isNull(); }

Q_SIGNALS:
    void askedChanged();
    void imageChanged();

private:
    void ask();
    QCoro::Task<> make(QString path);

    NotchSurroundings *m_surroundings = nullptr;
    QString m_path;
    QImage m_image;
    Scope m_making;
};

} // namespace Kestrune
