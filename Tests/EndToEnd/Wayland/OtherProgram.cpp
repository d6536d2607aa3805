#include <QDrag>
#include <QDragEnterEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>

#ifdef KESTRUNE_WAYLAND
#include <LayerShellQt/Window>
#endif

#include <cstdio>

namespace {

void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

class Window : public QRasterWindow
{
public:
    explicit Window(const QString &dragged)
        : m_dragged(dragged)
    {
        setTitle(QStringLiteral("Other program"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(QRect({}, size()), QColor(0x2f, 0x6f, 0x4f));
        if (!std::exchange(m_shown, true))
            say(QStringLiteral("shown"));
    }
    void mousePressEvent(QMouseEvent *) override { say(QStringLiteral("press")); }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        say(QStringLiteral("at %1").arg(qRound(event->position().x())));
        if (m_dragged.isEmpty() || !event->buttons() || std::exchange(m_dragging, true))
            return;
        auto *files = new QMimeData;
        files->setUrls({QUrl::fromLocalFile(m_dragged)});
        auto *drag = new QDrag(this);
        drag->setMimeData(files);
        drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::MoveAction);
        m_dragging = false;
    }
    void keyPressEvent(QKeyEvent *event) override { say(QStringLiteral("key ") + event->text()); }
    void focusInEvent(QFocusEvent *) override { say(QStringLiteral("focus")); }
    void focusOutEvent(QFocusEvent *) override { say(QStringLiteral("no focus")); }
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove)
            static_cast<QDragMoveEvent *>(event)->acceptProposedAction();
        if (event->type() == QEvent::Drop) {
            auto *drop = static_cast<QDropEvent *>(event);
            drop->acceptProposedAction();
            for (const QUrl &url : drop->mimeData()->urls())
                say(QStringLiteral("dropped ") + url.toLocalFile());
        }
        return QRasterWindow::event(event);
    }

private:
    QString m_dragged;
    bool m_shown = false;
    bool m_dragging = false;
};

/// A desktop's panel along the top edge, which it keeps for itself.
void showAsPanel(QWindow &window)
{
#ifdef KESTRUNE_WAYLAND
    using LayerShellQt::Window;
    constexpr int height = 30;
    window.resize(1280, height);
    Window *const surface = Window::get(&window);
    surface->setAnchors({Window::AnchorTop, Window::AnchorLeft, Window::AnchorRight});
    surface->setExclusiveZone(height);
    surface->setLayer(Window::LayerTop);
#endif
    window.show();
}

} // namespace

/// A window of another program, which says what happens to it: `OtherProgram maximized|full|panel [FILE]`.
/// FILE is what a drag from it carries.
int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    Window window(words.value(2));
    if (words.value(1) == QLatin1String("full"))
        window.showFullScreen();
    else if (words.value(1) == QLatin1String("panel"))
        showAsPanel(window);
    else
        window.showMaximized();
    return QGuiApplication::exec();
}
