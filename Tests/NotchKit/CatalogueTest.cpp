#include "NotchKit/Catalogue.h"
#include "NotchKit/NotchStrings.h"
#include "Support/TestRegistry.h"

#include <QTest>

using namespace Kestrune;

/// The raw strings are in users' settings; a change of one would lose what they chose.
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rawValuesAreFixed();
    void parsingIsExact();
    void localizationFollowsPreference_data();
    void localizationFollowsPreference();
};

void CatalogueTest::rawValuesAreFixed()
{
    const auto joined = []<typename Case>(const QList<Case> &cases) {
        return rawValues(cases).join(QLatin1Char(' '));
    };
    QCOMPARE(joined(allCases<NotchTool>()),
             QStringLiteral("home nowPlaying clipboard captures calendar shelf aiUsage weather stocks timer "
                            "teleprompter mirror note system"));
    QCOMPARE(
        joined(allCases<HomeWidget>()),
        QStringLiteral("greeting weather nowPlaying events reminders aiUsage timer stocks system clipboard "
                       "captures note"));
    QCOMPARE(joined(allCases<HomeColumn>()), QStringLiteral("hidden left center right"));
    QCOMPARE(joined(allCases<NotchOpenMode>()), QStringLiteral("hover click"));
    QCOMPARE(QString::fromLatin1(entry(NotchTool::captures).title), QStringLiteral("Screenshots"));
    QCOMPARE(QString::fromLatin1(entry(HomeColumn::center).title), QStringLiteral("Centre"));
}

void CatalogueTest::parsingIsExact()
{
    for (const NotchTool tool : allCases<NotchTool>())
        QCOMPARE(fromRawValue<NotchTool>(rawValue(tool)), std::optional(tool));
    QVERIFY(!fromRawValue<NotchTool>(QStringLiteral("Home")));
    QVERIFY(!fromRawValue<HomeColumn>(QStringLiteral("centre")));
    QVERIFY(!fromRawValue<NotchOpenMode>(QString()));
}

void CatalogueTest::localizationFollowsPreference_data()
{
    QTest::addColumn<QString>("preferences");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("first served wins") << "de,en"
                                       << "de";
    QTest::newRow("English before German") << "en,de"
                                           << "en";
    QTest::newRow("a region is served by its language") << "de-AT,de-Latn-AT"
                                                        << "de";
    QTest::newRow("a language is served by a region") << "pt"
                                                      << "pt-BR";
    QTest::newRow("a region is served by another") << "pt-PT,pt-Latn-PT,en"
                                                   << "pt-BR";
    QTest::newRow("a region by its own") << "zh-CN,zh-Hans-CN,zh"
                                         << "zh-CN";
    QTest::newRow("Simplified elsewhere") << "zh-Hans-SG,zh-SG"
                                          << "zh-CN";
    QTest::newRow("Traditional is another script") << "zh-TW,zh-Hant-TW"
                                                   << "en";
    QTest::newRow("Traditional before English") << "zh-HK,zh-Hant-HK,en,de"
                                                << "en";
    QTest::newRow("unserved ones are passed over") << "cy,el-GR,de-CH,en"
                                                   << "de";
    QTest::newRow("none served") << "cy,el"
                                 << "en";
    QTest::newRow("no locale") << "C"
                               << "en";
    QTest::newRow("no preference") << ""
                                   << "en";
}

void CatalogueTest::localizationFollowsPreference()
{
    QFETCH(const QString, preferences);
    QFETCH(const QString, chosen);
    QVERIFY(availableLocalizations().contains(chosen));
    QCOMPARE(
        chooseLocalization(availableLocalizations(), preferences.split(QLatin1Char(','), Qt::SkipEmptyParts)),
        chosen);
}

REGISTER_TEST(CatalogueTest);
#include "CatalogueTest.moc"
