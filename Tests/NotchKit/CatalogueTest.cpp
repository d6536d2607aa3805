#include "NotchKit/Catalogue.h"
#include "NotchKit/NotchStrings.h"
#include "Support/TestRegistry.h"

/// The raw strings are in users' settings; a change of one would lose what they chose.
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rawValuesAreFixed()
    {
        const auto joined = []<typename Case>(const QList<Case> &cases) {
            return rawValues(cases).join(u' ');
        };
        QCOMPARE(joined(allCases<NotchTool>()),
                 u"home nowPlaying clipboard captures calendar shelf aiUsage weather stocks timer "
                 "teleprompter mirror note system"_s);
        QCOMPARE(joined(allCases<HomeWidget>()),
                 u"greeting weather nowPlaying events reminders aiUsage timer stocks system clipboard "
                 "captures note"_s);
        QCOMPARE(joined(allCases<HomeColumn>()), u"hidden left center right"_s);
        QCOMPARE(joined(allCases<NotchOpenMode>()), u"hover click"_s);
        QCOMPARE(QString::fromLatin1(entry(NotchTool::captures).title), u"Screenshots"_s);
        QCOMPARE(QString::fromLatin1(entry(HomeColumn::center).title), u"Centre"_s);
    }

    void localizationFollowsPreference_data()
    {
        const auto row = columns<QString, QString>();
        row("first served wins", "de,en", "de");
        row("English before German", "en,de", "en");
        row("a region is served by its language", "de-AT,de-Latn-AT", "de");
        row("a language is served by a region", "pt", "pt-BR");
        row("a region is served by another", "pt-PT,pt-Latn-PT,en", "pt-BR");
        row("a region by its own", "zh-CN,zh-Hans-CN,zh", "zh-CN");
        row("Simplified elsewhere", "zh-Hans-SG,zh-SG", "zh-CN");
        row("Traditional is another script", "zh-TW,zh-Hant-TW", "en");
        row("Traditional before English", "zh-HK,zh-Hant-HK,en,de", "en");
        row("unserved ones are passed over", "cy,el-GR,de-CH,en", "de");
        row("none served", "cy,el", "en");
        row("no locale", "C", "en");
        row("no preference", "", "en");
    }

    void localizationFollowsPreference()
    {
        const auto [preferences, chosen] = fetched<QString, QString>();
        QVERIFY(availableLocalizations().contains(chosen));
        QCOMPARE(chooseLocalization(availableLocalizations(), preferences.split(u',', Qt::SkipEmptyParts)),
                 chosen);
    }
};

REGISTER_TEST(CatalogueTest);
#include "CatalogueTest.moc"
