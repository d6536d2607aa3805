#include "NotchKit/Kit/FocusReveal.h"
#include "NotchKit/Tools/Clipboard/ClipboardModel.h"
#include "WindowStage.h"

#include <QClipboard>

namespace {

DefaultsValue copies(int count)
{
    ClipboardItems items;
    for (int i = 0; i < count; ++i)
        items.append({QUuid::createUuid(),
                      ClipboardItem::Kind::text,
                      u"copy %1"_s.arg(i),
                      {},
                      QDateTime::currentDateTimeUtc(),
                      {}});
    return encodeClipboardItems(items);
}

/// The open notch with something in its tools, and the keyboard.
struct Stage : WindowStage
{
    Stage()
        : WindowStage({{u"notch.clipboardItems"_s, copies(30)},
                       {u"notch.prompterText"_s, u"Good evening"_s},
                       {u"notch.tickers"_s, QStringList{u"AAPL"_s}}})
    {}

    QQuickItem *focused() const { return window->activeFocusItem(); }
    QString textOf(const QString &type) const { return find(type)->property("text").toString(); }
    bool isTyped(const QString &text) const
    {
        return focused() && focused()->property("text").toString() == text;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window.get(), key, modifiers);
    }
    void type(const char *text) const
    {
        for (const char *letter = text; *letter != 0; ++letter)
            QTest::keyClick(window.get(), *letter);
    }
    void close()
    {
        press(Qt::Key_Escape);
        if (core.model().expanded())
            press(Qt::Key_Escape); // The first one ended what was going on in the pane.
    }
    NotchTool selected() { return core.model().selected(); }
    bool hasMenu(const QString &entry) const { return focused() && button(entry) != nullptr; }
    QHash<QQuickItem *, double> looks() const
    {
        QHash<QQuickItem *, double> opacities;
        for (QQuickItem *item : items(window->contentItem())) {
            if (item->inherits("QQuickControl") && item->isVisible())
                opacities.insert(item, item->opacity());
        }
        return opacities;
    }
};

} // namespace

/// What all panes have in common.
class PanesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comeOnScreenAsIfMadeAnew_data()
    {
        const auto row = columns<NotchTool>();
        for (const NotchTool tool : allCases<NotchTool>())
            row(entry(tool).view, tool);
    }

    void comeOnScreenAsIfMadeAnew()
    {
        const auto [tool] = fetched<NotchTool>();
        Stage stage;
        stage.open(tool);
        const QString type = QString::fromLatin1(entry(tool).view);
        QQuickItem *const first = stage.focused();
        QVERIFY2(stage.find(type) && stage.find(type)->isAncestorOf(first), "the pane has the keyboard");
        stage.press(Qt::Key_Tab);
        if (!Stage::buttons(stage.find(type)).isEmpty())
            QVERIFY2(stage.find(type)->isAncestorOf(stage.focused()), "Tab goes on within it");
        for (int i = 0; i < 2; ++i)
            stage.press(Qt::Key_Tab);
        QVERIFY(stage.focused() != first);

        const auto open = stage.looks();
        stage.press(Qt::Key_Escape);
        QVERIFY(!stage.core.model().expanded() && stage.find(type));
        QCOMPARE(stage.looks(), open);
        QVERIFY2(!stage.find(type)->isAncestorOf(stage.focused()), "what closes takes no keys");
        stage.open(tool);
        QCOMPARE(stage.focused(), first);

        stage.press(Qt::Key_Tab);
        stage.core.controller.open(tool == NotchTool::home ? NotchTool::note : NotchTool::home);
        stage.core.controller.open(tool);
        QVERIFY(stage.find(type) && stage.find(type)->isAncestorOf(stage.focused()));
    }

    void whatIsTypedStays()
    {
        Stage stage;
        const QSignalSpy typed(&stage.core.model(), &NotchScreenModel::typed);
        stage.open(NotchTool::weather);
        stage.type("osl");
        QCOMPARE(typed.count(), 3);
        stage.close();
        stage.open(NotchTool::weather);
        QVERIFY(stage.isTyped(u"osl"_s));
        stage.press(Qt::Key_Tab, Qt::ControlModifier);
        QVERIFY(stage.selected() == NotchTool::stocks && !stage.find(u"WeatherPane"_s));
        stage.press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(stage.isTyped(u"osl"_s));

        stage.open(NotchTool::note);
        stage.type("ab");
        stage.press(Qt::Key_Tab, Qt::ControlModifier);
        stage.close();
        stage.open(NotchTool::note);
        QVERIFY(stage.isTyped(u"ab"_s));
        stage.press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(stage.isTyped(QString()));
        stage.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(stage.isTyped(u"ab"_s));
        QCOMPARE(stage.core.settings.note(), u"ab"_s);
    }

    void theNewestIsInSight()
    {
        Stage stage;
        stage.open(NotchTool::clipboard);
        for (int i = 0; i < 12; ++i)
            stage.press(Qt::Key_Down);
        stage.press(Qt::Key_Return);
        const auto says = [&](const char *property) {
            const auto rows = stage.all(u"ClipRow"_s);
            return std::ranges::count_if(rows, [&](auto *row) { return row->property(property).toBool(); });
        };
        QTRY_COMPARE(says("copied"), 1);
        for (int i = 0; i < 12; ++i)
            stage.press(Qt::Key_Down);
        stage.close();
        stage.open(NotchTool::clipboard);
        QTRY_COMPARE(says("copied"), 0);
        const auto current = [&]() -> QQuickItem * {
            const auto rows = stage.all(u"ClipRow"_s);
            const auto found =
                std::ranges::find_if(rows, [](auto *row) { return row->property("current").toBool(); });
            return found == rows.end() ? nullptr : *found;
        };
        QTRY_VERIFY(current() && current()->property("text") == "copy 12"_L1 &&
                    current()->y() + current()->parentItem()->y() ==
                        0); // At the list's top, wherever its origin is.
        stage.core.pasteboard.offer(u"new"_s);
        Q_EMIT stage.core.pasteboard.changed();
        stage.core.wait(1000);
        Fakes::finishWork();
        QTRY_VERIFY(current() && current()->property("text") == "new"_L1);
    }

    void menusCloseWithTheNotch_data()
    {
        const auto row = columns<NotchTool, QString>();
        row("a row's", NotchTool::clipboard, "Delete");
        row("an editor's", NotchTool::note, "Paste");
        row("a field's", NotchTool::weather, "Paste");
    }

    void menusCloseWithTheNotch()
    {
        const auto [tool, entry] = fetched<NotchTool, QString>();
        Stage stage;
        stage.open(tool);
        QQuickItem *const field = stage.focused();
        stage.press(Qt::Key_F10, Qt::ShiftModifier);
        QTRY_VERIFY(stage.hasMenu(entry));
        QVERIFY(stage.focused()->inherits("QQuickAbstractButton") &&
                stage.focused()->property("ringed").toBool());
        stage.press(Qt::Key_Escape);
        QVERIFY(stage.core.model().expanded());
        QTRY_COMPARE(stage.focused(), field);
        stage.press(Qt::Key_Menu);
        QTRY_VERIFY(stage.hasMenu(entry));
        stage.core.controller.collapseAll();
        QTRY_VERIFY(!stage.button(entry));
        stage.open(tool);
        QCOMPARE(stage.focused(), field);
    }

    void fieldsHaveTheUsualMenu_data()
    {
        const auto row = columns<NotchTool, QString>();
        row("a field", NotchTool::clipboard, "LineField");
        row("an editor", NotchTool::note, "NoteEditor");
    }

    void fieldsHaveTheUsualMenu()
    {
        const auto [tool, type] = fetched<NotchTool, QString>();
        Stage stage;
        stage.open(tool);
        stage.type("word");
        QQuickItem *const field = stage.focused();
        const auto choose = [&](const QString &entry) {
            const QSignalSpy wanted(&stage.core.model(), &NotchScreenModel::keyboardWanted);
            stage.click(stage.find(type), {20, 12}, Qt::RightButton);
            if (wanted.isEmpty() || !QTest::qWaitFor([&] {
                    return stage.hasMenu(entry) && stage.button(u"Select All"_s)->y() > 0;
                }))
                return false;
            stage.click(stage.button(entry), {9, 9});
            return QTest::qWaitFor([&] { return stage.focused() == field; });
        };
        QVERIFY(choose(u"Select All"_s));
        QCOMPARE(field->property("selectedText").toString(), u"word"_s);
        QVERIFY(choose(u"Cut"_s));
        QVERIFY(stage.isTyped(QString()));
        QCOMPARE(QGuiApplication::clipboard()->text(), u"word"_s);
        QVERIFY(choose(u"Paste"_s) && choose(u"Paste"_s));
        QVERIFY(stage.isTyped(u"wordword"_s));
    }

    void keysChooseTools()
    {
        Stage stage;
        stage.open(NotchTool::home);
        const NotchTools tools = stage.core.settings.tools();
        stage.press(Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(stage.selected(), tools.at(2));
        stage.type("2");
        QVERIFY2(stage.isTyped(u"2"_s) && stage.selected() == tools.at(2), "a digit alone is typed");
        NotchPresentation keys(stage.core.model(), stage.core.services);
        QVERIFY(keys.chooseByKey(Qt::Key_Ampersand, Qt::ControlModifier, 10));
        QCOMPARE(stage.selected(), tools.at(0));
        QVERIFY(!keys.chooseByKey(Qt::Key_A, Qt::ControlModifier, 38));
        stage.press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(stage.selected(), tools.last());
        stage.press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(stage.selected(), tools.first());

        while (!stage.focused()->inherits("QQuickAbstractButton") ||
               !stage.focused()->property("selected").toBool())
            stage.press(Qt::Key_Tab);
        stage.press(Qt::Key_Left);
        QCOMPARE(stage.focused()->property("help").toString(), title(tools.last()));
        QVERIFY(stage.focused()->property("ringed").toBool());
        QCOMPARE(stage.selected(), tools.first());
        QQuickItem *const last = stage.focused();
        stage.press(Qt::Key_Tab);
        QVERIFY2(stage.focused()->parentItem() != last->parentItem(), "the tools are one stop");
        last->forceActiveFocus(Qt::TabFocusReason);
        stage.press(Qt::Key_Home);
        while (stage.focused()->property("help") != title(NotchTool::note))
            stage.press(Qt::Key_Right);
        stage.press(Qt::Key_Return);
        stage.type("x");
        QVERIFY(stage.isTyped(u"x"_s) && stage.selected() == NotchTool::note);
    }

    void whatHasTheKeyboardIsInSight()
    {
        QCOMPARE(FocusReveal::revealing(0, 100, 20, 80), 0.0);
        QCOMPARE(FocusReveal::revealing(0, 100, 150, 180), 80.0);
        QCOMPARE(FocusReveal::revealing(90, 100, 50, 80), 50.0);
        QCOMPARE(FocusReveal::revealing(0, 100, 50, 300), 50.0);

        Stage stage;
        for (const HomeWidget widget : allCases<HomeWidget>())
            stage.core.settings.setColumn(HomeColumn::left, widget);
        stage.open(NotchTool::home);
        int inside = 0;
        for (int i = 0; i < 30; ++i) {
            stage.press(Qt::Key_Tab);
            const QQuickItem *column = stage.find(u"HomeColumn"_s);
            if (!column->isAncestorOf(stage.focused()))
                continue;
            ++inside;
            const QRectF place = stage.focused()->mapRectToItem(column, stage.focused()->boundingRect());
            QVERIFY2(place.top() >= 0 && (place.bottom() <= column->height() || place.top() < 9),
                     stage.focused()->metaObject()->className());
        }
        QVERIFY(inside > 10);
    }

    /// What had the keyboard goes: its neighbour has it then.
    void focusOutlivesARow()
    {
        Stage stage;
        const QTemporaryDir folder;
        QList<QUrl> files;
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            files.append(QUrl::fromLocalFile(file.fileName()));
        }
        NotchPresentation(stage.core.model(), stage.core.services).addToShelf(files);
        stage.open(NotchTool::shelf);
        QTRY_COMPARE(stage.all(u"ShelfTile"_s).size(), 3);
        stage.all(u"ShelfTile"_s).at(1)->forceActiveFocus(Qt::TabFocusReason);
        stage.press(Qt::Key_Delete);
        for (int left = 2; left > 0; --left) {
            QTRY_COMPARE(stage.all(u"ShelfTile"_s).size(), left);
            QTRY_VERIFY(stage.all(u"ShelfTile"_s).contains(stage.focused()));
            stage.press(Qt::Key_Delete);
        }
        QTRY_VERIFY(stage.all(u"ShelfTile"_s).isEmpty());
        QVERIFY(stage.find(u"ShelfPane"_s)->isAncestorOf(stage.focused()));
    }
};

REGISTER_TEST(PanesTest);
#include "PanesTest.moc"
