#include "RunReader.h"

#include "RunFile.h"
#include "Settings.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestTag = 4096; // bytes; ours have some 200
constexpr int longestText = 300; // characters, of the head and of an event
constexpr double longestTime = 86400; // seconds
constexpr double widestLevel = 1000; // dBm, either way

} // namespace

RunReader::RunReader(const QByteArray &contents)
{
    if (isScreened(contents)) {
        m_xml.addData(contents);
    }
}

/// A tag may hold any number of attributes, which the parser compares each with each.
bool RunReader::isScreened(const QByteArray &contents)
{
    if (!contents.startsWith("<?xml")) {
        fail(tr("it does not begin as XML does"));
        return false;
    }
    qsizetype opening = -1;
    for (qsizetype i = 0; i < contents.size(); ++i) {
        if (contents[i] == '<') {
            opening = i;
        } else if (contents[i] == '>') {
            opening = -1;
        } else if (opening >= 0 && i - opening > longestTag) {
            fail(tr("a tag in it is too long"));
            return false;
        }
    }
    return true;
}

bool RunReader::read(RunFile &file)
{
    if (!m_error.isEmpty() || !readDocumentType()) {
        return false;
    }
    if (!m_xml.readNextStartElement() || m_xml.name() != "LevelMeterRun"_L1) {
        fail(tr("another application has written it"));
    }
    while (m_error.isEmpty() && m_xml.readNextStartElement()) {
        readElement(file);
    }
    // The end of the document is read, too: what stands behind the root element is no run.
    while (m_error.isEmpty() && !m_xml.atEnd()) {
        m_xml.readNext();
    }
    if (m_xml.hasError()) {
        fail(tr("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString()));
    }
    return m_error.isEmpty();
}

bool RunReader::readDocumentType()
{
    while (!m_xml.atEnd() && m_xml.readNext() != QXmlStreamReader::DTD && !m_xml.isStartElement()) {
    }
    if (!m_xml.isDTD() || m_xml.dtdName() != "VEX"_L1) {
        fail(tr("it has no document type VEX"));
    } else if (m_xml.text().contains(u'[')) {
        // Entities grow without bounds.
        fail(tr("it declares entities"));
    }
    return m_error.isEmpty();
}

void RunReader::readElement(RunFile &file)
{
    const QStringView name = m_xml.name();
    if (name == "Settings"_L1) {
        readSettings(file.run);
    } else if (name == "Event"_L1) {
        readEvent(file.run);
    } else if (name == "Samples"_L1) {
        readSamples(file.run);
    } else {
        readHead(file);
    }
}

void RunReader::readHead(RunFile &file)
{
    const QString name = m_xml.name().toString();
    const QString text = m_xml.readElementText().left(longestText);
    if (name == "ServerId"_L1) {
        file.head.serverId = text;
    } else if (name == "AppType"_L1) {
        file.head.appType = text;
    } else if (name == "AppTech"_L1) {
        file.head.appTech = text;
    } else if (name == "Ports"_L1) {
        file.head.ports = text;
    } else if (name == "Timestamp"_L1) {
        file.run.started = QDateTime::fromString(text, Qt::ISODateWithMs);
    } else {
        fail(tr("line %1: unknown element %2").arg(m_xml.lineNumber()).arg(name.left(60)));
    }
}

void RunReader::readSettings(Run &run)
{
    if (!run.samples().isEmpty()) {
        fail(tr("its settings come after its samples"));
        return;
    }
    const auto setting = [this](const QString &name, Settings::Id id) {
        const Settings::Number &limits = Settings::number(id);
        return attribute(name, limits.minimum, limits.maximum);
    };
    MeterSettings &settings = run.settings;
    settings.frequency = setting(u"frequency"_s, Settings::Frequency);
    settings.bitRate = setting(u"bitRate"_s, Settings::BitRate);
    settings.threshold = setting(u"threshold"_s, Settings::Threshold);
    settings.duration = qRound(setting(u"duration"_s, Settings::Duration));
    settings.sampleRate = qRound(setting(u"sampleRate"_s, Settings::SampleRate));
    settings.ratioExponent = qRound(setting(u"ratioExponent"_s, Settings::RatioExponent));
    settings.pattern = m_xml.attributes().value(u"pattern"_s).toULongLong(nullptr, 16);
    settings.testName = m_xml.attributes().value(u"test"_s).left(longestText).toString();
    constexpr auto lastEnding = static_cast<int>(Run::Ending::NotStarted);
    run.ending = static_cast<Run::Ending>(qRound(attribute(u"ending"_s, 0, lastEnding)));
    m_xml.readElementText();
}

void RunReader::readEvent(Run &run)
{
    if (run.events.size() >= RunFile::mostEvents) {
        fail(tr("it has too many events"));
        return;
    }
    RunEvent event;
    event.time = attribute(u"time"_s, 0, longestTime);
    event.kind = static_cast<RunEvent::Kind>(qRound(attribute(u"kind"_s, 0, RunEvent::Failure)));
    event.text = m_xml.readElementText().left(longestText);
    run.events.append(event);
}

void RunReader::readSamples(Run &run)
{
    double number = std::round(attribute(u"first"_s, 0, longestTime * run.settings.sampleRate));
    const QString text = m_xml.readElementText();
    for (const QStringView word : QStringView(text).tokenize(u' ', Qt::SkipEmptyParts)) {
        readSample(run, word, number / run.settings.sampleRate);
        ++number;
        if (!m_error.isEmpty()) {
            return;
        }
    }
}

void RunReader::readSample(Run &run, QStringView word, double time)
{
    if (run.samples().size() >= RunFile::mostSamples) {
        fail(tr("it has too many samples"));
    } else if (!run.samples().isEmpty() && time <= run.samples().constLast().time) {
        fail(tr("line %1: the samples are not in order").arg(m_xml.lineNumber()));
    } else {
        const qsizetype slash = word.indexOf(u'/');
        const QStringView errors = slash < 0 ? QStringView(u"0") : word.mid(slash + 1);
        const double level = number(slash < 0 ? word : word.left(slash), -widestLevel, widestLevel);
        constexpr double mostErrors = std::numeric_limits<quint32>::max();
        run.add({time, level, static_cast<quint32>(number(errors, 0, mostErrors))});
    }
}

double RunReader::attribute(const QString &name, double least, double most)
{
    return number(m_xml.attributes().value(name), least, most);
}

double RunReader::number(QStringView text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number) && number >= least && number <= most) {
        return number;
    }
    fail(tr("line %1: expected a number from %2 to %3, found '%4'")
             .arg(m_xml.lineNumber())
             .arg(least)
             .arg(most)
             .arg(text.left(40)));
    return least;
}

/// The first reason is the one that helps.
void RunReader::fail(const QString &reason)
{
    if (m_error.isEmpty()) {
        m_error = reason;
    }
}
