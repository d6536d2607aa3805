#include "NotchKit/Kit/ScrollGlide.h"
#include "NotchKit/Tools/Teleprompter/ScriptLayout.h"
#include "Support/TestRegistry.h"

#include <QTextLayout>

/// How the script breaks into lines, and how it glides.
class ScriptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void piecesBreakLikeTheWhole_data()
    {
        QTest::addColumn<QString>("text");
        const QString words = u"The quick brown fox; jumps over — the lazy dog, again and again. "_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("short") << u"Hello"_s;
        QTest::newRow("paragraphs") << u"One\n\n  two  \n"_s + words.repeated(5) + u"\nlast\n"_s;
        QTest::newRow("one long paragraph") << words.repeated(200);
        QTest::newRow("one long word") << QString(5000, u'x');
        QTest::newRow("many scripts") << (words + u"שלום לכולם 🎬 日本語の原稿です。"_s).repeated(80);
        QTest::newRow("right to left") << u"مرحبا بكم جميعًا في هذا المساء، سطر طويل. "_s.repeated(100);
    }

    void piecesBreakLikeTheWhole()
    {
        QFETCH(const QString, text);
        const QFont font = QGuiApplication::font();
        ScriptLayout layout;
        layout.begin(text, font, 300);
        for (int i = 0; i < 2000 && !layout.isComplete(); ++i)
            layout.advance();
        QVERIFY(layout.isComplete());

        std::size_t at = 0;
        qsizetype start = 0;
        double bottom = -ScriptLayout::lineSpacing;
        for (const QString &paragraph : text.split(u'\n')) {
            QTextLayout whole(paragraph, font);
            QTextOption option;
            option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
            option.setTextDirection(paragraph.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
            whole.setTextOption(option);
            whole.beginLayout();
            for (QTextLine line = whole.createLine(); line.isValid(); line = whole.createLine())
                line.setLineWidth(300);
            whole.endLayout();
            for (int i = 0; i < whole.lineCount(); ++i, ++at) {
                QVERIFY(at < layout.lines().size());
                const auto &line = layout.lines()[at];
                QCOMPARE(line.start, start + whole.lineAt(i).textStart());
                QCOMPARE(line.top, bottom + ScriptLayout::lineSpacing);
                QVERIFY(line.height > 5 && layout.shaped(line)->lineAt(0).naturalTextWidth() < 302);
                bottom = line.top + line.height;
            }
            start += paragraph.size() + 1;
        }
        QCOMPARE(layout.lines().size(), at);
        QCOMPARE(layout.height(), bottom);
        const auto middle = layout.lines().size() / 2;
        QCOMPARE(layout.lineBelow(layout.lines()[middle].top), middle);
        QCOMPARE(layout.lineAt(layout.lines()[middle].start), middle);
    }

    void glideNeverGoesBackAndKeepsThePace_data() { noAndYes("on time", "late"); }

    void glideNeverGoesBackAndKeepsThePace()
    {
        const auto [isLate] = fetched<bool>();
        constexpr double speed = 100;
        ScrollGlide glide;
        double fastest = 0, slowest = 1000;
        int step = 0;
        for (int frame = 1; frame <= 300; ++frame) {
            const int late = isLate ? step % 3 * 10 : 0; // Milliseconds.
            if (frame * 15 >= (step + 1) * 50 + late)
                glide.setTarget(++step * speed / 20);
            const double before = glide.position();
            glide.advance(0.015, speed, false);
            const double moved = glide.position() - before;
            QVERIFY(moved >= 0 && glide.position() <= glide.target());
            if (frame > 30) {
                fastest = std::max(fastest, moved / 1.5);
                slowest = std::min(slowest, moved / 1.5);
            }
        }
        QVERIFY2(slowest > 0.6 && fastest < 1.4, qPrintable(u"%1 to %2"_s.arg(slowest).arg(fastest)));
        for (int frame = 0; frame < 10 && !glide.arrived(); ++frame)
            glide.advance(0.015, speed, true);
        QVERIFY(glide.arrived());
        glide.setTarget(3);
        QCOMPARE(glide.position(), 3.0);
    }
};

REGISTER_TEST(ScriptTest);
#include "ScriptTest.moc"
