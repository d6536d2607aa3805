#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QRasterWindow>
#include <QTimer>
#include <QUrl>

#include <cstdio>

/// A Qt program's clipboard: `copy TYPE FILE` offers the file's bytes as TYPE until it is stopped,
/// `paste TYPE` writes what there is to standard output. Under Wayland it has a window, and waits for the
/// keyboard: the clipboard is there for nobody else.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QRasterWindow window;
    if (QGuiApplication::platformName() == QLatin1String("wayland")) {
        window.show();
        while (!window.isActive())
            QGuiApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const QString type = arguments.value(2);
    if (arguments.value(1) == QLatin1String("copy")) {
        QFile file(arguments.value(3));
        if (!file.open(QFile::ReadOnly))
            return 2;
        auto *data = new QMimeData;
        if (type == QLatin1String("text/plain"))
            data->setText(QString::fromUtf8(file.readAll()));
        else
            data->setData(type, file.readAll());
        QGuiApplication::clipboard()->setMimeData(data);
        return QGuiApplication::exec();
    }
    QTimer::singleShot(0, [&] {
        const auto *data = QGuiApplication::clipboard()->mimeData();
        const QByteArray bytes =
            type == QLatin1String("text/plain") ? data->text().toUtf8() : data->data(type);
        std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
        std::fflush(stdout); // A leak of the toolkit's, found at the end, would end the program without it.
        QGuiApplication::exit();
    });
    return QGuiApplication::exec();
}
