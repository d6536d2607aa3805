#include "Desktop/Mime/PasteboardTypes.h"
#include "Desktop/Mime/UriLists.h"
#include "Support/TestRegistry.h"

/// What programs call the forms of a copy, and what is in them.
class PasteboardTypesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAndTexts()
    {
        QCOMPARE(PasteboardTypes::named({"TARGETS", "STRING", "x-special/gnome-copied-files", "COMPOUND_TEXT",
                                         "text/uri-list", "org.nspasteboard.TransientType", "image/tiff",
                                         "text/html"}),
                 (QStringList{u"text/plain"_s, u"text/uri-list"_s, u"org.nspasteboard.TransientType"_s,
                              u"image/tiff"_s, u"text/html"_s}));
        const QByteArray latin1 = QByteArray::fromHex("fc6265720000"); // "über" and two terminators
        QCOMPARE(PasteboardTypes::text(latin1, "STRING"), u"über"_s);
        QCOMPARE(PasteboardTypes::text(latin1, "text/plain"), u"über"_s);
        QCOMPARE(PasteboardTypes::text(latin1, "UTF8_STRING"), u"\ufffdber"_s);
        QCOMPARE(PasteboardTypes::text(latin1, "COMPOUND_TEXT"), std::nullopt);
        const auto latin1Form = [](const QString &text) {
            const auto forms = PasteboardTypes::forms(text);
            return std::ranges::find(forms, "STRING", &PasteboardTypes::Form::target) != forms.end();
        };
        QVERIFY(latin1Form(u"über"_s) && !latin1Form(u"漢字"_s));
    }

    void lists()
    {
        const QByteArray lines =
            "# a comment\r\nfile:///a%20b\r\nhttp://example.org/c\r\nfile:g\r\nfile:////f\r\n"
            "file://localhost//d\nfile://elsewhere.example/e\r\nfile:///%C3%BC";
        const QList<QUrl> files{QUrl::fromLocalFile(u"/a b"_s), QUrl::fromLocalFile(u"/f"_s),
                                QUrl::fromLocalFile(u"/d"_s), QUrl::fromLocalFile(u"/ü"_s)};
        QCOMPARE(UriLists::localFiles(lines, "text/uri-list"), files);
        QCOMPARE(UriLists::localFiles("cut\n" + lines, UriLists::kCopiedFiles), files);
        QCOMPARE(UriLists::copiedFiles(files),
                 "copy\nfile:///a%20b\nfile:///f\nfile:///d\nfile:///%C3%BC"_ba);
        QCOMPARE(UriLists::localFiles("file:///a\n"_ba.repeated(150'000), "text/uri-list").size(), 100'000);
    }
};

REGISTER_TEST(PasteboardTypesTest);

#include "PasteboardTypesTest.moc"
