#include "EndToEnd/Stage.h"

constexpr QPoint firstCircle(663, 89); // that completes the first reminder
constexpr QRect firstTitle(720, 81, 60, 16);
constexpr QPoint allowCalendar(350, 96);

/// The calendar of the real program, over folders of files.
class CalendarTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aClickCompletesAReminder()
    {
        write(u"first"_s, "DUE:20200101T080000Z\r\nX-KEPT:yes\r\n");
        write(u"second"_s, "");
        QVERIFY(stage().show(u"calendar"_s));
        QTRY_VERIFY(isWritten(firstTitle));
        input().click(firstCircle);
        QTRY_VERIFY(read(u"first"_s).contains("\r\nSTATUS:COMPLETED\r\n"));
        QVERIFY(read(u"first"_s).contains("\r\nX-KEPT:yes\r\n"));
        const auto second = [&] { return read(u"second"_s).contains("STATUS:COMPLETED"); };
        // Once it has taken the place of the first.
        QVERIFY(waitUntil([&] { return input().click(firstCircle), waitUntil(second, 1000); }));
        QTRY_VERIFY(!isWritten(firstTitle));

        // Another program adds one; the next opening shows it.
        write(u"third"_s, "");
        input().hotKey();
        QVERIFY(stage().waitClosed() && stage().openByHotKey());
        QTRY_VERIFY(isWritten(firstTitle));
        input().click(firstCircle);
        QTRY_VERIFY(read(u"third"_s).contains("STATUS:COMPLETED"));
    }

    void accessMakesTheFolder()
    {
        QVERIFY(stage().show(u"calendar"_s) && !QDir(folder()).exists());
        const auto made = [&] { return QDir(folder()).exists(); };
        QVERIFY(waitUntil([&] { return input().click(allowCalendar), waitUntil(made, 1000); }));
    }

private:
    /// Whether there is anything bright in that place.
    bool isWritten(QRect place)
    {
        const QImage image = stage().x.grab(place);
        const auto isBright = [&](int x, int y) { return image.pixelColor(x, y).lightness() > 128; };
        return !areaWhere(image.size(), isBright).isEmpty();
    }

    QString folder() { return session().environment().value(u"XDG_DATA_HOME"_s) + u"/calendars"_s; }
    QString path(const QString &name) { return folder() + u"/list/"_s + name + u".ics"_s; }

    void write(const QString &name, const QByteArray &lines)
    {
        const QByteArray title = name.toLatin1();
        QVERIFY(writeFile(path(name), "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VTODO\r\nUID:" + title +
                                          "\r\nSUMMARY:MMMMMMMM " + title + "\r\n" + lines +
                                          "END:VTODO\r\nEND:VCALENDAR\r\n"));
    }
    QByteArray read(const QString &name) { return readFile(path(name)); }
};

REGISTER_TEST(CalendarTest);
#include "CalendarTest.moc"
