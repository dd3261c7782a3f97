#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>

#include <properties/PropertiesListener.h>

#include "MeterSettings.h"

/**
 * What is kept from one run of the application to the next, in the library's store of properties.
 *
 * Every change is in the file a quarter of a second later, so that a cut of the power costs no more
 * than the last turn of a wheel. The file has a folder of its own, since the store keeps the one
 * before and damaged ones beside it.
 */
class Settings : public QObject, private PropertiesListener
{
    Q_OBJECT

public:
    /// Numbers of the application's own range; 101 and 103 are the library's.
    enum Id : long {
        DirectionKeysPosition = 101,
        LastEditor = 103,
        Frequency = 2001,
        BitRate,
        Threshold,
        Duration,
        SampleRate,
        RatioExponent,
        Pattern,
        TestName,
        Language,
        Theme,
    };

    /// A number that can be set: what a field needs to know of it.
    struct Number
    {
        Id id;
        const char *tag; ///< its name in the file
        double minimum;
        double maximum;
        double standard;
        int decimals;
    };
    static const QVector<Number> &numbers();
    static const Number &number(Id id);

    /// Registers the properties and takes their values from @p folder, if there are any.
    explicit Settings(const QString &folder, QObject *parent = nullptr);
    /// Saves what is not saved yet.
    ~Settings() override;

    QString path() const;

    MeterSettings meterSettings() const;
    /// Within the number's range, whatever somebody wrote into the file.
    double value(Id id) const;
    void setValue(Id id, double value);
    quint64 pattern() const;
    void setPattern(quint64 pattern);
    QString text(Id id) const;
    void setText(Id id, const QString &text);

    /// Back to the standard values; language and theme stay.
    void restoreStandard();

Q_SIGNALS:
    /// The property with this id was set to another value.
    void changed(long id);
    /// Nothing is kept at the moment. Told once until it works again.
    void saveFailed(const QString &path);

private:
    void PropertyChanged(long id) override;
    void registerProperties();
    void save();

    const QString m_folder;
    QTimer m_saveTimer;
    bool m_saveHasFailed = false;
};
