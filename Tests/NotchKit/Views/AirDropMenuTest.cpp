#include "NotchKit/AirDrop.h"
#include "WindowStage.h"

#include <QQmlComponent>

class AirDropMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheMenuThatAskedOffersTheDevices()
    {
        WindowStage stage;
        stage.window->requestActivate();
        QTRY_VERIFY(stage.window->isActive());
        QQmlComponent component(&stage.engine);
        component.setData("import QtQuick\nimport Kestrune.Views\nItem { id: pane; width: 400; height: 300\n"
                          "required property AirDrop airDrop\n"
                          "property AirDropMenu one: AirDropMenu { parent: pane; airDrop: pane.airDrop }\n"
                          "property AirDropMenu other: AirDropMenu { parent: pane; airDrop: pane.airDrop } }",
                          QUrl(u"qrc:/Kestrune/Views/Test.qml"_s));
        QVERIFY2(component.isReady(), qPrintable(component.errorString()));
        AirDrop *airDrop = stage.core.services.surroundings()->airDrop();
        stage.core.sharing.reachable = Fakes::FakeSharing(3).reachable;
        const std::unique_ptr<QObject> pane(component.createWithInitialProperties(
            {{u"airDrop"_s, QVariant::fromValue(airDrop)}}, stage.engine.rootContext()));
        QVERIFY2(pane, qPrintable(component.errorString()));
        qobject_cast<QQuickItem *>(pane.get())->setParentItem(stage.window->contentItem());
        auto *one = pane->property("one").value<QObject *>(),
             *other = pane->property("other").value<QObject *>();
        const QList<QUrl> files{QUrl(u"file:///a"_s)};
        const auto send = [&](QObject *menu, double x) {
            QMetaObject::invokeMethod(menu, "send", Q_ARG(QVariant, QVariant::fromValue(files)),
                                      Q_ARG(QVariant, x), Q_ARG(QVariant, 290.0));
        };
        send(one, 10);
        QTRY_VERIFY(one->property("opened").toBool());
        QVERIFY(!other->property("visible").toBool());
        QTRY_VERIFY(one->property("y").toDouble() < 210);
        send(other, 390);
        QTRY_VERIFY(other->property("opened").toBool() && !one->property("visible").toBool());
        QTRY_VERIFY(other->property("x").toDouble() < 305);
        QMetaObject::invokeMethod(other, "close");
        QTRY_VERIFY(airDrop->choices().isEmpty());
        send(one, 10);
        QTRY_VERIFY(one->property("opened").toBool());
        QTest::keyClick(stage.window.get(), Qt::Key_Down);
        QTest::keyClick(stage.window.get(), Qt::Key_Space);
        QTRY_COMPARE(stage.core.sharing.sent, (QList{std::pair(u"id1"_s, files)}));
    }
};

REGISTER_TEST(AirDropMenuTest);
#include "AirDropMenuTest.moc"
