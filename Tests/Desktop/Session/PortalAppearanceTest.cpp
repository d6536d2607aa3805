#include "Desktop/Session/PortalAppearance.h"
#include "Desktop/BusStandIn.h"

#include <QPalette>

/// The colour scheme against a stand-in of the desktop's portal.
class PortalAppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setPalette(QPalette()); }

    void portalBeforePlatform_data()
    {
        // scheme: what the portal answers; invalid for an error
        columns<QVariant, bool, bool>();
        const auto number = [](uint scheme) { return QVariant::fromValue(QDBusVariant(scheme)); };
        QTest::newRow("dark") << number(1) << false << true;
        QTest::newRow("light") << number(2) << true << false;
        QTest::newRow("no preference") << number(0) << true << true;
        QTest::newRow("wrapped twice") << QVariant::fromValue(QDBusVariant(number(1))) << false << true;
        QTest::newRow("of another kind") << QVariant::fromValue(QDBusVariant(u"dark"_s)) << false << false;
        QTest::newRow("no such setting") << QVariant() << true << true;
    }

    void portalBeforePlatform()
    {
        const auto [scheme, platformDark, dark] = fetched<QVariant, bool, bool>();
        QGuiApplication::setPalette(QPalette(platformDark ? Qt::black : Qt::white));
        BusStandIn portal(u"org.freedesktop.portal.Desktop"_s);
        QVERIFY(portal.appear([&](const QDBusMessage &call) {
            return scheme.isValid() ? call.createReply(scheme)
                                    : call.createErrorReply(QDBusError::UnknownProperty, u"none"_s);
        }));
        const PortalAppearance appearance(portal.bus());
        QCOMPARE(appearance.isDark(), platformDark); // Nobody waited.
        QTRY_COMPARE(portal.called(),
                     QStringList(u"/org/freedesktop/portal/desktop org.freedesktop.portal.Settings.Read"_s));
        QTRY_COMPARE(appearance.isDark(), dark);
    }

    void changesAreFollowed()
    {
        BusStandIn portal(u"org.freedesktop.portal.Desktop"_s);
        QVERIFY(portal.appear([](const QDBusMessage &call) { return call.createReply(); }));
        const PortalAppearance appearance(portal.bus());
        QSignalSpy changed(&appearance, &Appearance::darkChanged);
        QTRY_VERIFY(!portal.calls.isEmpty());
        const auto tell = [&](const QString &key, uint value) {
            portal.signal(
                u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s,
                u"SettingChanged"_s,
                {u"org.freedesktop.appearance"_s, key, QVariant::fromValue(QDBusVariant(QVariant(value)))});
        };
        tell(u"contrast"_s, 1);
        tell(u"color-scheme"_s, 1);
        QTRY_VERIFY(appearance.isDark());
        tell(u"color-scheme"_s, 1);
        tell(u"color-scheme"_s, 2);
        QTRY_VERIFY(!appearance.isDark());
        QCOMPARE(changed.size(), 2);
    }
};

REGISTER_TEST(PortalAppearanceTest);
#include "PortalAppearanceTest.moc"
