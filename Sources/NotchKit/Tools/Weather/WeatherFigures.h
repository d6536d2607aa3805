#pragma once

#include "NotchKit/NotchSettings.h"
#include "NotchKit/NotchSurroundings.h"
#include "NotchKit/Tools/Weather/WeatherModel.h"

#include <QDate>
#include <QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// One day of the forecast as the views show it.
struct WeatherDayFigures
{
    Q_GADGET
    QML_VALUE_TYPE(weatherDayFigures)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(bool today MEMBER today)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString high MEMBER high)
    Q_PROPERTY(QString low MEMBER low)
    Q_PROPERTY(QString help MEMBER help)

public:
    QString label; ///< "Today", or the weekday in short.
    bool today = false;
    QString symbol;
    QString high;
    QString low;
    QString help; ///< All of it in words.

    bool operator==(const WeatherDayFigures &) const = default;
};

/// The texts of the weather pane and of its Home block. Figures of another place than the one that is set are
/// not shown.
class WeatherFigures : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(Kestrune::WeatherModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(Kestrune::NotchSurroundings *surroundings MEMBER m_surroundings REQUIRED)
    Q_PROPERTY(QString city READ city NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    /// "21°", or a dash.
    Q_PROPERTY(QString temperature READ temperature NOTIFY changed)
    /// With its unit; empty while it is not known.
    Q_PROPERTY(QString wind READ wind NOTIFY changed)
    /// The first day's highest and lowest temperature; empty while they are not known.
    Q_PROPERTY(QString range READ range NOTIFY changed)
    /// When the figures came, where they are old; empty while they are not.
    Q_PROPERTY(QString age READ age NOTIFY changed)
    Q_PROPERTY(QList<Kestrune::WeatherDayFigures> days READ days NOTIFY changed)

public:
    using QObject::QObject;

    /// Shows what the model tells from now on.
    void follow(WeatherModel &model, NotchSurroundings &surroundings);
    void classBegin() override {}
    void componentComplete() override { follow(*m_model, *m_surroundings); }

    QString city() const { return m_shown.city; }
    QString symbol() const { return m_shown.symbol; }
    QString temperature() const { return m_shown.temperature; }
    QString wind() const { return m_shown.wind; }
    QString range() const { return m_shown.range; }
    QString age() const { return m_shown.age; }
    QList<WeatherDayFigures> days() const { return m_shown.days; }

    /// A temperature as a whole number of degrees, halves away from zero.
    static QString degrees(double temperature);

Q_SIGNALS:
    void changed();

private:
    struct Shown
    {
        QString city;
        QString symbol;
        QString temperature;
        QString wind;
        QString range;
        QString age;
        QList<WeatherDayFigures> days;

        bool operator==(const Shown &) const = default;
    };

    void update();
    void followTime();
    bool areOld() const;
    WeatherDayFigures figures(const WeatherDay &day) const;

    WeatherModel *m_model = nullptr;
    NotchSurroundings *m_surroundings = nullptr;
    QDate m_today; ///< On the user's calendar.
    bool m_old = false;
    Shown m_shown;
};

} // namespace Kestrune
