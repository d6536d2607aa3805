#include "NotchKit/Shell/NotchWindow.h"
#include "NotchKit/Kit/SpringValue.h"
#include "NotchKit/Kit/Symbols.h"
#include "NotchKit/Tools/Timer/TimerModel.h"
#include "Support/TestRegistry.h"
#include "WindowStage.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QRawFont>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace Kestrune;
using Stage = WindowStage;

namespace {

QStringList warnings;

void collectWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(text);
}

} // namespace

class NotchWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerViews(); }
    void symbolsHaveGlyphs();
    void springValueMovesAndRests();
    void outlineFollowsTheState();
    void everyPaneLoadsQuietly();
    void tabReachesEveryControl();
    void noFieldReadsTheClipboardUnasked();
    void noteIsBoundBothWays();
    void timerPaneFollowsItsModel();
    void homeInAnyArrangement_data();
    void homeInAnyArrangement();
};

void NotchWindowTest::symbolsHaveGlyphs()
{
    QRawFont font = QRawFont::fromFont(QFont(Symbols::family()));
    QVERIFY(!Symbols::family().isEmpty());
    QStringList names = Symbols::names();
    for (const NotchTool tool : allCases<NotchTool>())
        names.append(symbol(tool));
    for (const QString &name : names) {
        const QString glyph = Symbols::glyph(name);
        QVERIFY2(glyph.size() == 1 && font.supportsCharacter(glyph.at(0)), qPrintable(name));
    }
    QVERIFY(Symbols::glyph(QStringLiteral("sundial")).isEmpty());
}

void NotchWindowTest::springValueMovesAndRests()
{
    SpringValue value;
    value.classBegin();
    value.setTarget(100);
    value.setResponse(0.05);
    value.setDampingFraction(1);
    value.componentComplete();
    QCOMPARE(value.value(), 100.0);
    QVERIFY(!value.running());
    QSignalSpy moved(&value, &SpringValue::valueChanged);
    value.setTarget(200);
    QVERIFY(value.running());
    QTRY_VERIFY(!value.running());
    QCOMPARE(value.value(), 200.0);
    QVERIFY(moved.count() > 1);
    moved.clear();
    value.setDampingFraction(0.5);
    QVERIFY2(!value.running(), "a spring at rest stays there");
}

void NotchWindowTest::outlineFollowsTheState()
{
    Stage stage;
    QTRY_COMPARE(stage.outline, QRectF(345, 0, 190, 32));
    stage.core.controller.open(std::nullopt);
    QTRY_COMPARE(stage.outline, QRectF(60, 0, 760, 330));
    stage.core.controller.collapseAll();
    stage.core.services.model<TimerModel>()->start(60);
    QTRY_COMPARE(stage.outline, QRectF(269, 0, 342, 32));
    QVERIFY(stage.find(QStringLiteral("TimerActivity")));
    stage.core.services.model<TimerModel>()->reset();
    QTRY_COMPARE(stage.outline, QRectF(345, 0, 190, 32));
}

void NotchWindowTest::everyPaneLoadsQuietly()
{
    warnings.clear();
    const auto before = qInstallMessageHandler(collectWarnings);
    {
        Stage stage;
        for (const NotchTool tool : stage.core.settings.tools()) {
            stage.core.controller.open(tool);
            const QString pane = QString::fromLatin1(entry(tool).view);
            QTRY_VERIFY2(stage.find(pane), qPrintable(pane));
            QTest::qWait(50);
        }
    }
    qInstallMessageHandler(before);
    QCOMPARE(warnings, QStringList());
}

void NotchWindowTest::tabReachesEveryControl()
{
    Stage stage;
    for (const NotchTool tool : stage.core.settings.tools()) {
        stage.core.controller.open(tool);
        QTRY_VERIFY(stage.find(QString::fromLatin1(entry(tool).view)));
        stage.window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(stage.window.get()));
        QSet<QQuickItem *> reached;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(stage.window.get(), Qt::Key_Tab);
            reached.insert(stage.window->activeFocusItem());
        }
        for (QQuickItem *button : Stage::buttons(stage.window->contentItem()))
            QVERIFY2(reached.contains(button), qPrintable(button->property("help").toString()));
    }
    QTest::keyClick(stage.window.get(), Qt::Key_Escape);
    QVERIFY(!stage.core.model().expanded());
}

void NotchWindowTest::noFieldReadsTheClipboardUnasked()
{
    Stage stage;
    int fields = 0;
    for (const NotchTool tool : stage.core.settings.tools()) {
        QGuiApplication::clipboard()->clear();
        stage.core.controller.open(tool);
        QTRY_VERIFY(stage.find(QString::fromLatin1(entry(tool).view)));
        QList<QSharedPointer<QSignalSpy>> looks;
        for (QQuickItem *item : Stage::items(stage.window->contentItem())) {
            if (item->metaObject()->indexOfProperty("canPaste") >= 0)
                looks.append(QSharedPointer<QSignalSpy>::create(item, SIGNAL(canPasteChanged())));
        }
        fields += static_cast<int>(looks.size());
        QGuiApplication::clipboard()->setText(QStringLiteral("secret"));
        for (const auto &look : looks)
            QCOMPARE(look->count(), 0);
    }
    QVERIFY(fields > 1);
}

void NotchWindowTest::noteIsBoundBothWays()
{
    Stage stage;
    stage.core.controller.open(NotchTool::note);
    QTRY_VERIFY(stage.find(QStringLiteral("NoteEditor")));
    QQuickItem *editor = stage.find(QStringLiteral("NoteEditor"));
    auto *input = editor->findChild<QQuickItem *>(QStringLiteral("input"));
    auto *placeholder = editor->findChild<QQuickItem *>(QStringLiteral("placeholder"));
    QVERIFY(placeholder->isVisible());
    input->forceActiveFocus();
    QTest::keyClick(stage.window.get(), Qt::Key_A);
    QCOMPARE(*stage.core.defaults.value<QString>(QStringLiteral("notch.note")), QStringLiteral("a"));
    QVERIFY(!placeholder->isVisible());
    stage.core.settings.setNote(QStringLiteral("from elsewhere"));
    QCOMPARE(input->property("text").toString(), QStringLiteral("from elsewhere"));
    stage.core.settings.setNote(QString());
    QVERIFY(placeholder->isVisible());
}

void NotchWindowTest::timerPaneFollowsItsModel()
{
    Stage stage;
    TimerModel &timer = *stage.core.services.model<TimerModel>();
    stage.core.controller.open(NotchTool::timer);
    QTRY_VERIFY(stage.find(QStringLiteral("TimerFace")));
    QQuickItem *time =
        stage.find(QStringLiteral("TimerFace"))->findChild<QQuickItem *>(QStringLiteral("time"));
    const auto shown = [&] { return time->property("text").toString(); };
    QCOMPARE(shown(), QStringLiteral("25:00"));
    timer.adjust(5);
    QCOMPARE(shown(), QStringLiteral("30:00"));
    timer.start(300);
    stage.core.wait(3000);
    QCOMPARE(shown(), QStringLiteral("4:57"));
    timer.pause();
    stage.core.wait(3000);
    QCOMPARE(shown(), QStringLiteral("4:57"));
    timer.start();
    stage.core.wait(300'000);
    QVERIFY(!time->isVisible());
    timer.reset();
    QCOMPARE(shown(), QStringLiteral("5:00"));
}

void NotchWindowTest::homeInAnyArrangement_data()
{
    QTest::addColumn<QList<int>>("counts"); // of the blocks in the left, center and right column
    QTest::newRow("nothing") << QList<int>{0, 0, 0};
    QTest::newRow("one") << QList<int>{0, 1, 0};
    QTest::newRow("two columns") << QList<int>{5, 0, 7};
    QTest::newRow("three columns") << QList<int>{4, 4, 4};
    QTest::newRow("all in one") << QList<int>{0, 0, 12};
}

void NotchWindowTest::homeInAnyArrangement()
{
    QFETCH(const QList<int>, counts);
    Stage stage;
    const auto widgets = allCases<HomeWidget>();
    QStringList expected;
    auto widget = widgets.cbegin();
    stage.core.settings.setHomeColumns({});
    for (std::size_t column = 0; column < 3; ++column) {
        for (int i = 0; i < counts.at(static_cast<int>(column)); ++i, ++widget) {
            stage.core.settings.setColumn(allCases<HomeColumn>().at(static_cast<int>(column) + 1), *widget);
            expected.append(QString::fromLatin1(entry(*widget).view));
        }
    }
    stage.core.controller.open(NotchTool::home);
    QTRY_COMPARE(stage.find(QStringLiteral("PaneMessage")) != nullptr, expected.isEmpty());
    QTRY_COMPARE(stage.all(QStringLiteral("HomeColumn")).size(), counts.size() - counts.count(0));
    QStringList shown;
    for (QQuickItem *column : stage.all(QStringLiteral("HomeColumn"))) {
        double bottom = 0;
        auto *const blocks = column->findChild<QQuickItem *>(QStringLiteral("blocks"));
        for (QQuickItem *loader : blocks->childItems()) {
            QQuickItem *const block = loader->childItems().value(0);
            if (!block)
                continue;
            shown.append(QString::fromLatin1(block->metaObject()->className()).section(u'_', 0, 0));
            const QString tool = block->property("tool").toString();
            const QRectF place = block->mapRectToItem(blocks, block->boundingRect());
            QVERIFY2(place.height() > 30 && place.top() >= bottom && place.right() < column->width() - 4,
                     qPrintable(shown.last()));
            bottom = place.bottom();
            column->setProperty("contentY", std::max(0.0, bottom - column->height()));
            QVERIFY2(block->mapRectToItem(column, block->boundingRect()).bottom() <= column->height() + 0.5,
                     qPrintable(shown.last()));
            if (tool.isEmpty())
                continue;
            QVERIFY(block->property("opens").toBool());
            stage.core.settings.setEnabled(*fromRawValue<NotchTool>(tool), false);
            QVERIFY2(!block->property("opens").toBool(), "it leads to a tool that is off");
            stage.core.settings.setEnabled(*fromRawValue<NotchTool>(tool), true);
        }
    }
    QCOMPARE(shown, expected);
    if (expected.isEmpty())
        return;
    QTRY_COMPARE(stage.outline.height(), 330.0);
    QQuickItem *const last = stage.find(expected.last());
    const QString tool = last->property("tool").toString();
    const QPointF corner = last->mapToScene({4, last->height() - 4});
    QTest::mouseClick(stage.window.get(), Qt::LeftButton, {}, corner.toPoint());
    QCOMPARE(rawValue(stage.core.model().selected()), tool.isEmpty() ? QStringLiteral("home") : tool);
}

REGISTER_TEST(NotchWindowTest);
#include "NotchWindowTest.moc"
