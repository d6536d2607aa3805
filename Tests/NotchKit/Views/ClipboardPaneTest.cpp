#include "NotchKit/Kit/KeyedListModel.h"
#include "NotchKit/Tools/Clipboard/ClipboardModel.h"
#include "WindowStage.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

namespace {

DefaultsValue stored(const QStringList &texts)
{
    ClipboardItems items;
    for (const QString &text : texts)
        items.append(
            {QUuid::createUuid(), ClipboardItem::Kind::text, text, {}, QDateTime::currentDateTimeUtc(), {}});
    return encodeClipboardItems(items);
}

/// The clipboard pane with three items and the keyboard.
struct Stage : WindowStage
{
    ClipboardModel &clipboard = *core.services.model<ClipboardModel>();
    QQuickItem *pane = nullptr;

    Stage()
        : WindowStage({{u"notch.clipboardItems"_s, stored({u"one"_s, u"two"_s, u"three"_s})}})
    {
        open(NotchTool::clipboard);
        pane = find(u"ClipboardPane"_s);
    }

    QStringList rows() const
    {
        QMap<qreal, QString> byPlace;
        for (QQuickItem *row : all(u"ClipRow"_s))
            byPlace.insert(row->y(), row->property("text").toString());
        return byPlace.values();
    }
    /// Whether no row is on its way to another place.
    bool isAtRest() const
    {
        QList<qreal> places;
        for (QQuickItem *row : all(u"ClipRow"_s))
            places.append(row->y() / (row->height() + 2));
        std::ranges::sort(places);
        return std::ranges::all_of(places, [&](qreal place) {
            return qFuzzyCompare(1 + place - places.constFirst(), 1 + double(places.indexOf(place)));
        });
    }
    QString message() const
    {
        const QQuickItem *shown = all(pane, u"PaneMessage"_s).value(0);
        return shown ? shown->property("text").toString().section(u'\n', 0, 0) : QString();
    }
    void click(const QQuickItem *item, Qt::MouseButton button = Qt::LeftButton) const
    {
        WindowStage::click(item, {item->width() / 2, 9}, button);
    }
};

} // namespace

class ClipboardPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyboardSearchesChoosesCopiesAndRemoves()
    {
        Stage stage;
        QTRY_COMPARE(stage.rows().size(), 3);
        stage.key(Qt::Key_Down);
        stage.key(Qt::Key_Down);
        stage.key(Qt::Key_Return);
        QCOMPARE(stage.core.pasteboard.written.text, u"three"_s);
        QTRY_COMPARE(stage.rows(), QStringList({u"three"_s, u"one"_s, u"two"_s}));
        stage.key(Qt::Key_T);
        QTRY_COMPARE(stage.rows(), QStringList({u"three"_s, u"two"_s}));
        stage.key(Qt::Key_Down);
        stage.key(Qt::Key_Delete);
        QTRY_COMPARE(stage.rows(), QStringList{u"three"_s});
        stage.key(Qt::Key_Home);
        stage.key(Qt::Key_Delete);
        QTRY_COMPARE(stage.rows(), QStringList({u"three"_s, u"one"_s}));
        QTest::keyClick(stage.window.get(), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(stage.clipboard.items().first().pinned);
        stage.key(Qt::Key_Escape);
        QVERIFY(!stage.core.model().expanded());
    }

    void pointerCopiesAndTheMenuDeletes()
    {
        Stage stage;
        QTRY_COMPARE(stage.rows().size(), 3);
        const auto row = [&](const char *text) {
            const auto rows = stage.all(u"ClipRow"_s);
            return *std::ranges::find_if(
                rows, [&](const QQuickItem *item) { return item->property("text") == QLatin1String(text); });
        };
        stage.click(row("two"));
        QCOMPARE(stage.clipboard.items().first().text, u"two"_s);
        QVERIFY(row("two")->property("copied").toBool() && !row("one")->property("copied").toBool());
        QTest::qWait(300);

        const auto written = stage.core.pasteboard.count;
        const auto choose = [&](const char *text, const QList<Qt::Key> &keys) {
            QTRY_VERIFY(stage.isAtRest());
            stage.click(row(text), Qt::RightButton);
            QVERIFY(QTest::qWaitFor(
                [&] { return stage.window->activeFocusItem()->inherits("QQuickAbstractButton"); }));
            for (const Qt::Key key : keys)
                stage.key(key);
        };
        choose("three", {Qt::Key_Return});
        QTRY_COMPARE(stage.rows(), QStringList({u"three"_s, u"two"_s, u"one"_s}));
        QVERIFY(stage.clipboard.visible().first().pinned);
        choose("three", {Qt::Key_Return});
        QTRY_COMPARE(stage.rows(), QStringList({u"two"_s, u"one"_s, u"three"_s}));
        choose("one", {Qt::Key_Down, Qt::Key_Return});
        QTRY_COMPARE(stage.rows(), QStringList({u"two"_s, u"three"_s}));
        QCOMPARE(stage.core.pasteboard.count, written);
        stage.key(Qt::Key_H);
        QTRY_COMPARE(stage.rows(), QStringList{u"three"_s});
    }

    void messages()
    {
        Stage stage;
        QTRY_COMPARE(stage.rows().size(), 3);
        QCOMPARE(stage.message(), QString());
        const auto chips = stage.all(u"FilterChip"_s);
        QCOMPARE(chips.size(), 5);
        stage.click(chips.at(3));
        QCOMPARE(stage.clipboard.filter(), ClipboardModel::Filter::images);
        QTRY_COMPARE(stage.message(), u"Nothing matches."_s);
        stage.core.settings.setClipboardHistory(false);
        QTRY_COMPARE(stage.message(), u"Clipboard history is off."_s);
        stage.core.settings.setClipboardHistory(true);
        const auto buttons = stage.all(stage.pane, u"SymbolButton"_s);
        QCOMPARE(buttons.size(), 1);
        stage.click(buttons.first());
        QVERIFY(stage.clipboard.items().isEmpty());
        QTRY_COMPARE(stage.message(), u"Copy something and it appears here."_s);
    }

    /// Any change of the list is a sequence of single moves, insertions and removals that ends in that list.
    void rowsKeepTheirIdentity()
    {
        Fakes::Core core;
        ClipboardModel &source = *core.services.model<ClipboardModel>();
        KeyedListModel rows;
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setSource(&source);
        rows.setList(u"visible"_s);
        const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
        core.services.start();
        QRandomGenerator random(7);
        for (int i = 0; i < 200; ++i) {
            const auto any = [&] { return source.items().at(random.bounded(source.items().size())); };
            const int choice = source.items().isEmpty() ? 0 : random.bounded(5);
            if (choice <= 1)
                core.pasteboard.offer(QString::number(i));
            else if (choice == 2)
                source.copy(any());
            else if (choice == 3)
                source.remove(any());
            else
                source.setQuery(QString::number(random.bounded(3)));
            Q_EMIT core.pasteboard.changed();
            QTRY_VERIFY(core.pasteboard.waiting.empty());
            Fakes::finishWork();
            QCOMPARE(rows.count(), source.visible().size());
            for (int row = 0; row < rows.count(); ++row)
                QCOMPARE(rows.data(rows.index(row), Qt::UserRole).value<ClipboardItem>(),
                         source.visible().at(row));
        }
        QVERIFY(resets.isEmpty() && !source.items().isEmpty());
    }
};

REGISTER_TEST(ClipboardPaneTest);
#include "ClipboardPaneTest.moc"
