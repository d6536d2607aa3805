#include "NotchWindow.h"

#include "FrameDriver.h"
#include "NotchShapeItem.h"

#include <QQmlComponent>
#include <QQmlEngine>

#include <cmath>

void qml_register_types_Kestrune_Views();

namespace Kestrune {

namespace {

constexpr auto kNotchView = "qrc:/Kestrune/Views/NotchView.qml";

FrameDriver &frames()
{
    static auto *const driver =
        new FrameDriver; // Kept to the end: animations outlive the application object.
    return *driver;
}

} // namespace

void registerViews()
{
    qml_register_types_Kestrune_Views();
    frames().install();
}

NotchWindow::NotchWindow(QQmlEngine &engine, NotchScreenModel &model, NotchServices &services)
    : m_model(model)
    , m_presentation(model, services)
{
    setColor(Qt::transparent);
    connect(this, &QQuickWindow::activeFocusItemChanged, this, &NotchWindow::watchKeyboard);
    QSurfaceFormat format;
    format.setAlphaBufferSize(8);
    setFormat(format);
    setTitle(services.branding().name);

    QQmlComponent component(&engine, QUrl(QString::fromLatin1(kNotchView)));
    m_root.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
        {{QStringLiteral("screenModel"), QVariant::fromValue(&model)},
         {QStringLiteral("services"), QVariant::fromValue(&services)},
         {QStringLiteral("presentation"), QVariant::fromValue(&m_presentation)}})));
    if (!m_root)
        qFatal("the notch view cannot be made: %s", qPrintable(component.errorString()));
    m_root->setParentItem(contentItem());
    m_root->setSize(NotchGeometry::panelSize);
    // In the middle, also of a window that is narrower than the panel for a while.
    connect(this, &QWindow::widthChanged, this,
            [this](int width) { m_root->setX(std::round((width - NotchGeometry::panelSize.width()) / 2)); });
    if (auto *shape = m_root->findChild<NotchShapeItem *>())
        connect(shape, &NotchShapeItem::outlineChanged, this, &NotchWindow::outlineChanged);
}

NotchWindow::~NotchWindow()
{
    disconnect(this, &QQuickWindow::activeFocusItemChanged, this, nullptr); // The last ones come as items go.
}

void NotchWindow::watchKeyboard()
{
    if (m_watched)
        m_watched->removeEventFilter(this);
    m_watched = activeFocusItem();
    if (m_watched)
        m_watched->installEventFilter(this);
}

bool NotchWindow::eventFilter(QObject *item, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    if (!isKey && event->type() != QEvent::InputMethod)
        return QQuickWindow::eventFilter(item, event);
    const auto *key = isKey ? static_cast<QKeyEvent *>(event) : nullptr;
    if (key && key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier) {
        QKeyEvent menu(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &menu); // From there it goes up to what takes it.
        return true;
    }
    if (m_watched && m_watched->flags().testFlag(QQuickItem::ItemAcceptsInputMethod))
        Q_EMIT m_model.typed();
    return QQuickWindow::eventFilter(item, event);
}

void NotchWindow::prepare() { m_root->setProperty("prepared", true); }

void NotchWindow::paceAnimations() { frames().followDrawing(*this); }

void NotchWindow::paceAnimations(std::function<bool(std::function<void()>)> awaitFrame)
{
    frames().follow(*this, std::move(awaitFrame));
}

} // namespace Kestrune
