#include "NotchKit/AirDrop.h"
#include "Support/Fakes.h"
#include "Support/TestRegistry.h"

class AirDropTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesGoWhereTheyShould_data()
    {
        // chosen: -1: cancelled, -2: not asked
        columns<int, QList<QUrl>, int, QString>();
        const QList<QUrl> files{QUrl(u"file:///a b"_s), QUrl(u"file:///c"_s)};
        QTest::newRow("no file") << 1 << QList<QUrl>() << -2 << QString();
        QTest::newRow("no local file") << 1 << QList<QUrl>{QUrl(u"https://c"_s)} << -2 << QString();
        QTest::newRow("no device") << 0 << files << -2 << QString();
        QTest::newRow("one file, one device") << 1 << files.mid(1) << -2 << u"id0"_s;
        QTest::newRow("several files, one device") << 1 << files << 0 << u"id0"_s;
        QTest::newRow("one file, two devices") << 2 << files.mid(1) << 1 << u"id1"_s;
        QTest::newRow("the second of three") << 3 << files << 1 << u"id1"_s;
        QTest::newRow("no such choice") << 3 << files << 3 << QString();
        QTest::newRow("cancelled") << 2 << files << -1 << QString();
    }

    void filesGoWhereTheyShould()
    {
        const auto [devices, sent, chosen, device] = fetched<int, QList<QUrl>, int, QString>();
        Fakes::FakeSharing sharing(devices);
        AirDrop airDrop(sharing);
        airDrop.send(sent);
        QCoreApplication::processEvents();
        QCOMPARE(!airDrop.choices().isEmpty(), chosen > -2);
        if (chosen > -2)
            QCOMPARE(airDrop.choices().constFirst(),
                     sent.size() > 1 ? u"Send 2 files to Device 0"_s : u"Device 0"_s);
        if (chosen >= 0)
            airDrop.choose(chosen);
        else if (chosen == -1)
            airDrop.cancel();
        QVERIFY(airDrop.choices().isEmpty());
        QCOMPARE(sharing.sent.size(), device.isEmpty() ? 0 : 1);
        if (!device.isEmpty())
            QCOMPARE(sharing.sent.constFirst(), std::pair(device, sent));
        airDrop.choose(0);
        QVERIFY2(sharing.sent.size() < 2, "nothing waits any more");
    }

    void saysWhatHappened_data()
    {
        const auto row = columns<bool, int, bool, QString, QString>();
        const QString lack = u"To send files, KDE Connect or GSConnect has to run."_s;
        row("no service", false, 0, false, lack, lack);
        row("no device", true, 0, false, u"No paired device is in reach."_s, QString());
        row("sent", true, 1, true, u"On the way to Device 0."_s, QString());
        row("refused", true, 1, false, u"Could not be sent to Device 0."_s, QString());
    }
    void saysWhatHappened()
    {
        const auto [served, devices, takes, notice, lack] = fetched<bool, int, bool, QString, QString>();
        Fakes::FakeSharing sharing(devices);
        sharing.served = served;
        sharing.takes = takes;
        AirDrop airDrop(sharing);
        airDrop.look();
        QTRY_COMPARE(airDrop.lack(), lack);
        QCOMPARE(airDrop.notice(), QString());
        airDrop.send({QUrl(u"file:///a"_s)});
        QTRY_COMPARE(airDrop.notice(), notice);
        QCOMPARE(airDrop.lack(), lack);
        airDrop.dismiss();
        QCOMPARE(airDrop.notice(), QString());
    }

    void laterRequestsAndEndsLeaveNothingBehind()
    {
        const QList<QUrl> first{QUrl(u"file:///1"_s)}, second{QUrl(u"file:///2"_s)};
        Fakes::FakeSharing sharing(1);
        sharing.held = true;
        auto airDrop = std::make_unique<AirDrop>(sharing);
        const int request = airDrop->send(first);
        QVERIFY(airDrop->send(second) != request);
        sharing.release();
        QCoreApplication::processEvents();
        QCOMPARE(sharing.sent, (QList{std::pair(u"id0"_s, second)}));

        sharing.held = true;
        airDrop->send(first);
        airDrop->cancel();
        sharing.release();
        QCoreApplication::processEvents();
        QVERIFY2(sharing.sent.size() == 1, "it was cancelled before the devices were known");

        sharing.held = true;
        airDrop->send(first);
        airDrop.reset();
        sharing.release();
        QCoreApplication::processEvents();
        QCOMPARE(sharing.sent.size(), 1);
    }
};

REGISTER_TEST(AirDropTest);
#include "AirDropTest.moc"
