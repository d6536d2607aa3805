#include "ScreenshotNames.h"

#include <algorithm>
#include <array>

namespace Kestrune {

namespace {

/// What tools begin a screenshot's name with, in small letters and with plain apostrophes.
constexpr std::array kWords{u"screenshot",
                            u"screen shot",
                            u"screen capture",
                            u"bildschirmfoto",
                            u"bildschirmaufnahme",
                            u"capture d'écran",
                            u"capture d'ecran",
                            u"captura de pantalla",
                            u"instantánea de pantalla",
                            u"schermata",
                            u"istantanea",
                            u"captura de tela",
                            u"captura de ecrã",
                            u"schermafdruk",
                            u"schermafbeelding",
                            u"zrzut ekranu",
                            u"snímek obrazovky",
                            u"snímka obrazovky",
                            u"képernyőkép",
                            u"ekran görüntüsü",
                            u"skärmbild",
                            u"skärmdump",
                            u"skærmbillede",
                            u"skjermbilde",
                            u"skjermdump",
                            u"kuvakaappaus",
                            u"ruutukaappaus",
                            u"captură de ecran",
                            u"snimka zaslona",
                            u"posnetek zaslona",
                            u"zaslonska slika",
                            u"pantaila-argazkia",
                            u"ekrano kopija",
                            u"ekrano nuotrauka",
                            u"ekrānattēls",
                            u"kuvatõmmis",
                            u"ekraanipilt",
                            u"снимок экрана",
                            u"скриншот",
                            u"знімок екрана",
                            u"снимка на екрана",
                            u"снимак екрана",
                            u"στιγμιότυπο",
                            u"スクリーンショット",
                            u"截图",
                            u"截圖",
                            u"屏幕截图",
                            u"截屏",
                            u"螢幕擷圖",
                            u"螢幕快照",
                            u"擷圖",
                            u"스크린샷",
                            u"화면 캡처",
                            u"لقطة شاشة",
                            u"لقطة الشاشة",
                            u"نماگرفت",
                            u"צילום מסך",
                            u"स्क्रीनशॉट",
                            u"ภาพหน้าจอ",
                            u"ảnh chụp màn hình",
                            u"tangkapan layar",
                            u"cuplikan layar"};

/// Folders whose names are not one of these words with an ending.
constexpr std::array kFolders{
    u"captures d'écran", u"capturas de pantalla", u"capturas de tela", u"capturas de ecrã",
    u"schermate",        u"istantanee",           u"zrzuty ekranu",    u"снимки экрана",
    u"знімки екрана",    u"snímky obrazovky",     u"képernyőképek",    u"ekran görüntüleri",
    u"schermafdrukken",  u"schermafbeeldingen",   u"لقطات الشاشة"};

constexpr int kLongestEnding = 3; ///< Of a plural: "Screenshots", "Skärmbilder".

QString normalized(const QString &name)
{
    QString plain = name.normalized(QString::NormalizationForm_C).toLower();
    return plain.replace(QChar(u'’'), QLatin1Char('\''));
}

/// Writing without spaces goes on right after the word.
bool isIdeograph(QChar character)
{
    const auto script = character.script();
    return script == QChar::Script_Han || script == QChar::Script_Katakana ||
           script == QChar::Script_Hiragana || script == QChar::Script_Hangul;
}

bool beginsWithWord(const QString &plain)
{
    return std::ranges::any_of(kWords, [&](const char16_t *characters) {
        const QStringView word(characters);
        if (!plain.startsWith(word))
            return false;
        return plain.size() == word.size() || !plain.at(word.size()).isLetter() || isIdeograph(word.back());
    });
}

/// Names of dates and times, with the tool's own mark or as no camera writes them.
const QRegularExpression &datedForms()
{
    static const QRegularExpression forms(QStringLiteral(
        "^(\\d{4}-\\d{2}-\\d{2}[-_ T].*[_-](scrot|grim|hyprshot|maim)(_\\d+)?\\.\\w+" // scrot, hyprshot
        "|\\d{8}_\\d{2}h\\d{2}m\\d{2}s_grim(_\\d+)?\\.\\w+"                           // grim
        "|\\d{4}-\\d{2}-\\d{2}_\\d{2}-\\d{2}(-\\d{2})?(_\\d+)?\\.png"                 // flameshot
        "|(ksnip|swappy|satty|flameshot|maim|hyprshot|spectacle)[-_ ]\\d.*\\.\\w+)$"));
    return forms;
}

/// The names that a pattern of strftime gives, also with a counter behind.
QRegularExpression compiled(const QString &pattern)
{
    QString expression;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar character = pattern.at(i);
        if (character != QLatin1Char('%') || i + 1 == pattern.size()) {
            expression += QRegularExpression::escape(QString(character));
            continue;
        }
        const QChar conversion = pattern.at(++i);
        const bool isText = QStringLiteral("aAbBhcpPZ").contains(conversion);
        expression += conversion == QLatin1Char('%') ? QStringLiteral("%")
                      : isText                       ? QStringLiteral(".+")
                                                     : QStringLiteral("[\\d:./ +-]+");
    }
    return QRegularExpression(QLatin1Char('^') + expression +
                              QStringLiteral("([_ -]?\\(?\\d+\\)?)?\\.\\w+$"));
}

} // namespace

ScreenshotNames::ScreenshotNames(const QStringList &patterns)
{
    for (const QString &pattern : patterns) {
        // A pattern without any date would take in names that anything may have.
        if (pattern.contains(QLatin1Char('%')))
            m_patterns.append(compiled(pattern));
    }
}

bool ScreenshotNames::isPicture(const QString &name)
{
    constexpr std::array kTypes{".png", ".jpg", ".jpeg", ".webp"};
    return std::ranges::any_of(
        kTypes, [&](const char *type) { return name.endsWith(QLatin1String(type), Qt::CaseInsensitive); });
}

bool ScreenshotNames::isScreenshot(const QString &name) const
{
    return beginsWithWord(normalized(name)) || datedForms().match(name).hasMatch() ||
           std::ranges::any_of(
               m_patterns, [&](const QRegularExpression &pattern) { return pattern.match(name).hasMatch(); });
}

bool ScreenshotNames::isScreenshotFolder(const QString &name)
{
    const QString plain = normalized(name);
    const auto isWord = [&](const char16_t *characters) {
        const QStringView word(characters);
        return plain.startsWith(word) && plain.size() <= word.size() + kLongestEnding;
    };
    const auto isFolder = [&](const char16_t *folder) { return plain == QStringView(folder); };
    return std::ranges::any_of(kWords, isWord) || std::ranges::any_of(kFolders, isFolder);
}

} // namespace Kestrune
