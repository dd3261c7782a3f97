#include "Settings.h"

#include <QDir>

#include <properties/PropertiesManager.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr long group = 20;
constexpr int saveDelay = 250; // milliseconds: a turn of the wheel is one write, not twenty
constexpr quint64 widestPattern = 0xFFFFFFFF;

PropertiesManager &store()
{
    return *PropertiesManager::instance();
}

} // namespace

const QVector<Settings::Number> &Settings::numbers()
{
    static const QVector<Number> all = {
        {Frequency, "Frequency", 186.0, 196.5, 193.1, 3},
        {BitRate, "BitRate", 0.1, 112.0, 10.3125, 4},
        {Threshold, "Threshold", -40.0, 5.0, -20.0, 2},
        {Duration, "Duration", 1, 600, 8, 0},
        {SampleRate, "SampleRate", 10, 1000, 500, 0},
        {RatioExponent, "RatioExponent", -12, -1, -6, 0},
    };
    return all;
}

const Settings::Number &Settings::number(Id id)
{
    const auto found = std::find_if(numbers().begin(), numbers().end(),
                                    [id](const Number &number) { return number.id == id; });
    Q_ASSERT(found != numbers().end());
    return *found;
}

Settings::Settings(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(saveDelay);
    connect(&m_saveTimer, &QTimer::timeout, this, &Settings::save);
    registerProperties();
    QDir().mkpath(m_folder);
    store().loadProperties(path(), PropertiesManager::DamagedFile::MoveAside);
}

Settings::~Settings()
{
    store().unregisterListener(this);
    if (m_saveTimer.isActive()) {
        save();
    }
}

void Settings::registerProperties()
{
    for (const Number &number : numbers()) {
        store().registerSetupProperty(number.id, QString::fromLatin1(number.tag),
                                      QString::number(number.standard, 'g', 17), group);
        store().registerListener(number.id, this);
    }
    const struct
    {
        Id id;
        QString tag;
        QString standard;
    } texts[] = {
        {DirectionKeysPosition, u"DirectionKeysPosition"_s, u"100"_s},
        {LastEditor, u"LastEditor"_s, u"1"_s},
        {Pattern, u"Pattern"_s, QString::number(MeterSettings().pattern, 16)},
        {TestName, u"TestName"_s, u"BERT"_s},
        {Language, u"Language"_s, u"en"_s},
        {Theme, u"Theme"_s, u"dark"_s},
    };
    for (const auto &text : texts) {
        store().registerSetupProperty(text.id, text.tag, text.standard, group);
        store().registerListener(text.id, this);
    }
}

QString Settings::path() const
{
    return QDir(m_folder).filePath(u"settings.xml"_s);
}

MeterSettings Settings::meterSettings() const
{
    MeterSettings settings;
    settings.frequency = value(Frequency);
    settings.bitRate = value(BitRate);
    settings.threshold = value(Threshold);
    settings.duration = qRound(value(Duration));
    settings.sampleRate = qRound(value(SampleRate));
    settings.ratioExponent = qRound(value(RatioExponent));
    settings.pattern = pattern();
    settings.testName = text(TestName);
    return settings;
}

double Settings::value(Id id) const
{
    const Number &limits = number(id);
    bool isNumber = false;
    const double value = store().getProperty(id).toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::clamp(value, limits.minimum, limits.maximum)
                                            : limits.standard;
}

void Settings::setValue(Id id, double value)
{
    setText(id, QString::number(value, 'f', number(id).decimals));
}

quint64 Settings::pattern() const
{
    bool isNumber = false;
    const quint64 pattern = store().getProperty(Pattern).toULongLong(&isNumber, 16);
    return isNumber && pattern <= widestPattern ? pattern : MeterSettings().pattern;
}

void Settings::setPattern(quint64 pattern)
{
    setText(Pattern, QString::number(pattern, 16));
}

QString Settings::text(Id id) const
{
    return store().getProperty(id);
}

void Settings::setText(Id id, const QString &text)
{
    store().setProperty(id, text, false);
}

void Settings::restoreStandard()
{
    for (const Number &number : numbers()) {
        setValue(number.id, number.standard);
    }
    setText(Pattern, store().getDefault(Pattern));
}

void Settings::PropertyChanged(long id)
{
    // Not started anew by each change: during a long turn of the wheel it is saved all the same.
    if (!m_saveTimer.isActive()) {
        m_saveTimer.start();
    }
    Q_EMIT changed(id);
}

void Settings::save()
{
    m_saveTimer.stop();
    const bool isSaved = store().saveProperties(path());
    if (!isSaved && !m_saveHasFailed) {
        Q_EMIT saveFailed(path());
    }
    m_saveHasFailed = !isSaved;
}
