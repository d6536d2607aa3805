#include "NotchKit/Kit/SpringValue.h"
#include "NotchKit/Kit/Symbols.h"
#include "NotchKit/Tools/Timer/TimerModel.h"
#include "WindowStage.h"

#include <QClipboard>
#include <QQmlComponent>
#include <QQmlIncubationController>
#include <QRawFont>
#include <QTcpServer>
#include <QVariantAnimation>

using Stage = WindowStage;

static QStringList warnings;

static void collectWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(text);
}

class NotchWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerViews(); }
    void symbolsHaveGlyphs()
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
        QVERIFY(Symbols::glyph(u"sundial"_s).isEmpty());
    }

    void springValueMovesAndRests()
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

    /// How long the notch stays closed meanwhile, in ms; and the first opening finds it as one without it
    /// does.
    void whatOpensFirstIsMadeAhead_data()
    {
        const auto row = columns<NotchTool, int>();
        row("Home", NotchTool::home, 500);
        row("a pane with a field", NotchTool::note, 500);
        for (const int milliseconds : {10, 20, 30, 40, 60, 90})
            row(qPrintable(u"opened while it is made, %1"_s.arg(milliseconds)), NotchTool::note,
                milliseconds);
        row("opened at once", NotchTool::note, 0);
    }

    void whatOpensFirstIsMadeAhead()
    {
        const auto [tool, closed] = fetched<NotchTool, int>();
        Stage stage;
        stage.core.model().setSelected(tool);
        const auto paneOf = [&]() -> QQuickItem * {
            for (QQuickItem *item : Stage::items(stage.window->contentItem())) {
                const QByteArray name = item->metaObject()->className();
                if (name.startsWith("HomePane_QML") || name.startsWith("NotePane_QML"))
                    return item;
            }
            return nullptr;
        };
        QTest::qWait(50);
        QVERIFY(!paneOf());
        stage.window->prepare();
        if (closed > 100)
            QTRY_VERIFY(paneOf() && stage.engine.incubationController()->incubatingObjectCount() == 0);
        else
            QTest::qWait(closed);
        const QQuickItem *made = paneOf();
        QVERIFY(!made || (!made->isVisible() && !made->hasActiveFocus()));
        QVERIFY(closed > 0 || !made);
        stage.open(tool);
        QVERIFY(paneOf());
        if (closed > 100)
            QCOMPARE(paneOf(), made);
        QVERIFY(paneOf()->isVisible());
        QTRY_VERIFY(paneOf()->hasActiveFocus());
        if (tool == NotchTool::note) {
            stage.key(Qt::Key_A);
            QCOMPARE(stage.core.settings.note(), u"a"_s);
        }
    }

    void animationsStepWithTheFramesOfPacedWindows_data() { noAndYes("by time alone", "paced"); }
    void animationsStepWithTheFramesOfPacedWindows()
    {
        const auto [paced] = fetched<bool>();
        Stage stage;
        if (paced)
            stage.window->paceAnimations();
        QVariantAnimation animation;
        animation.setDuration(60000);
        animation.start();
        QTRY_VERIFY(animation.currentTime() > 0);
        int steps = 0;
        for (int frame = 0; frame < 4; ++frame) { // No timer runs out meanwhile.
            const int before = animation.currentTime();
            QTest::qSleep(5);
            QEvent request(QEvent::UpdateRequest);
            QCoreApplication::sendEvent(stage.window.get(), &request);
            steps += animation.currentTime() > before;
        }
        QCOMPARE(steps, paced ? 4 : 0);
    }

    void animationsStepWithTheDisplaysFrames()
    {
        Stage stage;
        QList<std::function<void()>> asked;
        bool tells = true;
        stage.window->paceAnimations([&](std::function<void()> then) {
            asked.append(std::move(then));
            return tells;
        });
        QVariantAnimation animation;
        animation.setDuration(60000);
        animation.start();
        while (asked.isEmpty()) // The first step comes by time.
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        for (int frame = 0; frame < 4; ++frame) { // No timer runs out meanwhile.
            const int before = animation.currentTime();
            QTest::qSleep(5);
            asked[frame]();
            QVERIFY(animation.currentTime() > before);
            QCOMPARE(asked.size(), frame + 2);
            asked[frame](); // One that is late, or lies.
            QCOMPARE(asked.size(), frame + 2);
        }
        const int before = animation.currentTime();
        QTRY_VERIFY2(animation.currentTime() > before + 100, "a display that falls silent stops nothing");
        QCOMPARE(asked.size(), 5);
        animation.stop();
        asked.last()();
        QCOMPARE(asked.size(), 5);
        QTest::qWait(50); // The pace itself comes to rest.

        tells = false;
        animation.start();
        QTRY_VERIFY2(asked.size() > 7, "nor does one that says nothing");
    }

    void viewsReachNoServer_data() { noAndYes("an engine that may", "the views' engine"); }
    void viewsReachNoServer()
    {
        const auto [view] = fetched<bool>();
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const std::unique_ptr<QQmlEngine> engine(view ? new ViewEngine : new QQmlEngine);
        QQmlComponent component(engine.get());
        component.setData("import QtQuick\nImage { source: 'http://127.0.0.1:" +
                              QByteArray::number(server.serverPort()) + "/picture.png' }",
                          {});
        const std::unique_ptr<QObject> image(component.create());
        QVERIFY2(image, qPrintable(component.errorString()));
        constexpr int error = 3; // Image.Error
        QTRY_VERIFY(server.hasPendingConnections() || image->property("status").toInt() == error);
        QCOMPARE(server.hasPendingConnections(), !view);
    }

    void outlineFollowsTheState()
    {
        Stage stage;
        QTRY_COMPARE(stage.outline, QRectF(345, 0, 190, 32));
        stage.core.controller.open(std::nullopt);
        QTRY_COMPARE(stage.outline, QRectF(60, 0, 760, 330));
        stage.core.controller.collapseAll();
        stage.core.services.model<TimerModel>()->start(60);
        QTRY_COMPARE(stage.outline, QRectF(269, 0, 342, 32));
        QVERIFY(stage.find(u"TimerActivity"_s));
        stage.core.services.model<TimerModel>()->reset();
        QTRY_COMPARE(stage.outline, QRectF(345, 0, 190, 32));
    }

    void everyPaneLoadsQuietly()
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

    void tabReachesEveryControl()
    {
        Stage stage;
        for (const NotchTool tool : stage.core.settings.tools()) {
            stage.core.controller.open(tool);
            QTRY_VERIFY(stage.find(QString::fromLatin1(entry(tool).view)));
            stage.window->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(stage.window.get()));
            QSet<QQuickItem *> reached;
            const auto press = [&](Qt::Key key) {
                stage.key(key);
                reached.insert(stage.window->activeFocusItem());
                return QString::fromLatin1(stage.window->activeFocusItem()->metaObject()->className());
            };
            for (int i = 0; i < 40; ++i) {
                if (!press(Qt::Key_Tab).startsWith("ToolButton"_L1))
                    continue;
                for (qsizetype tools = stage.core.settings.tools().size(); tools > 0; --tools)
                    press(Qt::Key_Right);
            }
            for (QQuickItem *button : Stage::buttons(stage.window->contentItem()))
                QVERIFY2(reached.contains(button), qPrintable(button->property("help").toString()));
        }
        QTest::keyClick(stage.window.get(), Qt::Key_Escape);
        QVERIFY(!stage.core.model().expanded());
    }

    void noFieldReadsTheClipboardUnasked()
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
            QGuiApplication::clipboard()->setText(u"secret"_s);
            for (const auto &look : looks)
                QCOMPARE(look->count(), 0);
        }
        QVERIFY(fields > 1);
    }

    void noteIsBoundBothWays()
    {
        Stage stage;
        stage.core.controller.open(NotchTool::note);
        QTRY_VERIFY(stage.find(u"NoteEditor"_s));
        QQuickItem *editor = stage.find(u"NoteEditor"_s);
        auto *input = editor->findChild<QQuickItem *>(u"input"_s);
        auto *placeholder = editor->findChild<QQuickItem *>(u"placeholder"_s);
        QVERIFY(placeholder->isVisible());
        input->forceActiveFocus();
        QTest::keyClick(stage.window.get(), Qt::Key_A);
        QCOMPARE(*stage.core.defaults.value<QString>(u"notch.note"_s), u"a"_s);
        QVERIFY(!placeholder->isVisible());
        stage.core.settings.setNote(u"from elsewhere"_s);
        QCOMPARE(input->property("text").toString(), u"from elsewhere"_s);
        stage.core.settings.setNote(QString());
        QVERIFY(placeholder->isVisible());
    }

    void timerPaneFollowsItsModel()
    {
        Stage stage;
        TimerModel &timer = *stage.core.services.model<TimerModel>();
        stage.core.controller.open(NotchTool::timer);
        QTRY_VERIFY(stage.find(u"TimerFace"_s));
        QQuickItem *time = stage.find(u"TimerFace"_s)->findChild<QQuickItem *>(u"time"_s);
        const auto shown = [&] { return time->property("text").toString(); };
        QCOMPARE(shown(), u"25:00"_s);
        timer.adjust(5);
        QCOMPARE(shown(), u"30:00"_s);
        timer.start(300);
        stage.core.wait(3000);
        QCOMPARE(shown(), u"4:57"_s);
        timer.pause();
        stage.core.wait(3000);
        QCOMPARE(shown(), u"4:57"_s);
        timer.start();
        stage.core.wait(300'000);
        QVERIFY(!time->isVisible());
        timer.reset();
        QCOMPARE(shown(), u"5:00"_s);
    }

    void homeInAnyArrangement_data()
    {
        QTest::addColumn<QList<int>>("counts"); // of the blocks in the left, center and right column
        QTest::newRow("nothing") << QList<int>{0, 0, 0};
        QTest::newRow("one") << QList<int>{0, 1, 0};
        QTest::newRow("two columns") << QList<int>{5, 0, 7};
        QTest::newRow("three columns") << QList<int>{4, 4, 4};
        QTest::newRow("all in one") << QList<int>{0, 0, 12};
    }

    void homeInAnyArrangement()
    {
        QFETCH(const QList<int>, counts);
        Stage stage;
        const auto widgets = allCases<HomeWidget>();
        QStringList expected;
        auto widget = widgets.cbegin();
        stage.core.settings.setHomeColumns({});
        for (std::size_t column = 0; column < 3; ++column) {
            for (int i = 0; i < counts.at(static_cast<int>(column)); ++i, ++widget) {
                stage.core.settings.setColumn(allCases<HomeColumn>().at(static_cast<int>(column) + 1),
                                              *widget);
                expected.append(QString::fromLatin1(entry(*widget).view));
            }
        }
        stage.core.controller.open(NotchTool::home);
        QTRY_COMPARE(stage.find(u"PaneMessage"_s) != nullptr, expected.isEmpty());
        QTRY_COMPARE(stage.all(u"HomeColumn"_s).size(), counts.size() - counts.count(0));
        QStringList shown;
        for (QQuickItem *column : stage.all(u"HomeColumn"_s)) {
            double bottom = 0;
            auto *const blocks = column->findChild<QQuickItem *>(u"blocks"_s);
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
                QVERIFY2(block->mapRectToItem(column, block->boundingRect()).bottom() <=
                             column->height() + 0.5,
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
        QCOMPARE(rawValue(stage.core.model().selected()), tool.isEmpty() ? u"home"_s : tool);
    }
};

REGISTER_TEST(NotchWindowTest);
#include "NotchWindowTest.moc"
