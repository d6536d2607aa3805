#include "NotchStrings.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr auto kTranslations = ":/translations";
constexpr auto kContext = "notch";

QString primarySubtag(const QString &tag) { return tag.section(QLatin1Char('-'), 0, 0); }

/// Written in one script too: Traditional Chinese is not served by Simplified Chinese.
bool serves(const QString &candidate, const QString &preference)
{
    return primarySubtag(candidate) == primarySubtag(preference) &&
           QLocale(candidate).script() == QLocale(preference).script();
}

QString fileName(const QString &language)
{
    return QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
}

/// Chooses the language and installs it, so that the views' own look-ups follow it too.
class Translation
{
public:
    Translation()
        : m_language(chooseLocalization(availableLocalizations(), QLocale::system().uiLanguages()))
    {
        if (m_translator.load(fileName(m_language), QString::fromLatin1(kTranslations)))
            QCoreApplication::installTranslator(&m_translator);
    }

    const QString &language() const { return m_language; }

    static const Translation &chosen()
    {
        static const Translation translation;
        return translation;
    }

private:
    QString m_language;
    QTranslator m_translator;
};

} // namespace

QStringList availableLocalizations()
{
    QStringList languages;
    const auto files = QDir(QString::fromLatin1(kTranslations)).entryList({QStringLiteral("*.qm")});
    for (const QString &file : files)
        languages.append(file.chopped(3).replace(QLatin1Char('_'), QLatin1Char('-')));
    if (!languages.contains(QStringLiteral("en")))
        languages.prepend(QStringLiteral("en")); // The code's own.
    return languages;
}

QString chooseLocalization(const QStringList &available, const QStringList &preferences)
{
    for (const QString &preference : preferences) {
        if (available.contains(preference))
            return preference;
        const auto found = std::ranges::find_if(
            available, [&](const QString &candidate) { return serves(candidate, preference); });
        if (found != available.cend())
            return *found;
    }
    return QStringLiteral("en");
}

QString notchStrings(const char *english, int number)
{
    Translation::chosen();
    return QCoreApplication::translate(kContext, english, nullptr, number);
}

QString notchLanguage() { return Translation::chosen().language(); }

QString hostName()
{
    static const QString name = [] {
        const QString display = QCoreApplication::instance()->property("applicationDisplayName").toString();
        const QString base = display.isEmpty() ? QCoreApplication::applicationName() : display;
        //: Stands for the name of the program where it has none.
        return base.isEmpty() ? notchStrings(QT_TRANSLATE_NOOP("notch", "this app")) : base;
    }();
    return name;
}

} // namespace Kestrune
