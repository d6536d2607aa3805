#include "Desktop/Session/AutostartLoginItem.h"
#include "NotchKit/Platform/CameraHousings.h"
#include "Support/TestRegistry.h"

class SessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loginItemIsAnAutostartEntry()
    {
        const QTemporaryDir config;
        qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
        AutostartLoginItem item(u"/opt/my \"apps\"/50% kestrune"_s);
        QVERIFY(!item.isEnabled() && !item.setEnabled(true) && item.isEnabled());
        const QString entry = config.filePath(u"autostart/kestrune.desktop"_s);
        const QByteArray text = readFile(entry);
        QVERIFY(text.contains("\nExec=\"/opt/my \\\\\"apps\\\\\"/50%% kestrune\"\n"));
        QVERIFY(writeFile(entry, text + "Hidden = true\n"));
        QVERIFY2(!item.isEnabled(), "the desktop's own settings switched it off");
        QVERIFY(!item.setEnabled(true) && item.isEnabled());
        for (const char *program :
             {"true", "/bin/sh", "\"/opt/gone/kestrune\"", "/opt/gone/kestrune --open"}) {
            const QByteArray other = "[Desktop Entry]\nExec=" + QByteArray(program) + '\n';
            QVERIFY(writeFile(entry, other));
            item.repair();
            QCOMPARE(readFile(entry), QByteArray(program).contains("gone") ? text : other);
        }
        QVERIFY(!item.setEnabled(false) && !item.isEnabled() && !item.setEnabled(false));
        item.repair();
        QVERIFY(!item.isEnabled());
        QVERIFY(QDir(config.path()).rmdir(u"autostart"_s));
        QVERIFY(writeFile(config.filePath(u"autostart"_s)));
        QVERIFY2(item.setEnabled(true).has_value(), "a folder that cannot be made is told");
    }

    void housingsAreParsed_data()
    {
        columns<QString, QSizeF>();
        QTest::newRow("whole") << "185x32" << QSizeF(185, 32);
        QTest::newRow("fraction") << "184.5x32.25" << QSizeF(184.5, 32.25);
        for (const char *bad :
             {"", "185", "185x", "0x32", "-1x32", "185 x 32", "185x32+1", "nanx32", "1e3x32"})
            QTest::newRow(bad) << QString::fromLatin1(bad) << QSizeF();
    }

    void housingsAreParsed()
    {
        const auto [text, size] = fetched<QString, QSizeF>();
        QCOMPARE(CameraHousings::parse(text).value_or(QSizeF()), size);
    }
};

REGISTER_TEST(SessionTest);
#include "SessionTest.moc"
