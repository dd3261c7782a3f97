#include "RunWriter.h"

#include "RunFile.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int blockSize = 500; // samples an element

QString text(double number)
{
    return QString::number(number, 'g', 15);
}

/// "-13.72", or "-13.72/4" with four errors.
QString text(const Sample &sample)
{
    const QString level = QString::number(sample.level, 'f', 2);
    return sample.errors == 0 ? level : level + u'/' + QString::number(sample.errors);
}

/// A line of the head holds 300 bytes; and what XML can't hold has no place in it.
QString headText(const QString &text)
{
    constexpr int longest = 60;
    QString clean;
    for (const QChar character : text.left(longest)) {
        clean += character.isPrint() ? character : QChar(u' ');
    }
    return clean;
}

} // namespace

RunWriter::RunWriter(QIODevice &device)
    : m_xml(&device)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
}

void RunWriter::write(const RunFile &file)
{
    m_xml.writeStartDocument();
    m_xml.writeDTD(u"\n<!DOCTYPE VEX>"_s);
    m_xml.writeStartElement(u"LevelMeterRun"_s);
    m_xml.writeTextElement(u"ServerId"_s, headText(file.head.serverId));
    m_xml.writeTextElement(u"AppType"_s, headText(file.head.appType));
    m_xml.writeTextElement(u"AppTech"_s, headText(file.head.appTech));
    m_xml.writeTextElement(u"Ports"_s, headText(file.head.ports));
    m_xml.writeTextElement(u"Timestamp"_s, file.run.started.toString(Qt::ISODateWithMs));
    writeSettings(file.run);
    writeEvents(file.run);
    writeSamples(file.run);
    m_xml.writeEndElement();
    m_xml.writeEndDocument();
}

void RunWriter::writeSettings(const Run &run)
{
    const MeterSettings &settings = run.settings;
    m_xml.writeEmptyElement(u"Settings"_s);
    m_xml.writeAttribute(u"frequency"_s, text(settings.frequency));
    m_xml.writeAttribute(u"bitRate"_s, text(settings.bitRate));
    m_xml.writeAttribute(u"threshold"_s, text(settings.threshold));
    m_xml.writeAttribute(u"duration"_s, QString::number(settings.duration));
    m_xml.writeAttribute(u"sampleRate"_s, QString::number(settings.sampleRate));
    m_xml.writeAttribute(u"ratioExponent"_s, QString::number(settings.ratioExponent));
    m_xml.writeAttribute(u"pattern"_s, QString::number(settings.pattern, 16));
    m_xml.writeAttribute(u"test"_s, settings.testName);
    m_xml.writeAttribute(u"ending"_s, QString::number(static_cast<int>(run.ending)));
}

void RunWriter::writeEvents(const Run &run)
{
    for (const RunEvent &event : run.events) {
        m_xml.writeStartElement(u"Event"_s);
        m_xml.writeAttribute(u"time"_s, QString::number(event.time, 'f', 3));
        m_xml.writeAttribute(u"kind"_s, QString::number(event.kind));
        m_xml.writeCharacters(event.text);
        m_xml.writeEndElement();
    }
}

void RunWriter::writeSamples(const Run &run)
{
    const auto count = static_cast<int>(run.samples().size());
    int first = 0;
    for (int i = 1; i <= count; ++i) {
        if (i == count || i - first == blockSize || run.gaps().contains(i)) {
            writeBlock(run, first, i);
            first = i;
        }
    }
}

/// Of the times only the first one is written, as a number of intervals, so that it is exact.
void RunWriter::writeBlock(const Run &run, int first, int last)
{
    QStringList levels;
    for (int i = first; i < last; ++i) {
        levels += text(run.samples()[i]);
    }
    m_xml.writeStartElement(u"Samples"_s);
    const double number = run.samples()[first].time * run.settings.sampleRate;
    m_xml.writeAttribute(u"first"_s, QString::number(std::llround(number)));
    m_xml.writeCharacters(levels.join(u' '));
    m_xml.writeEndElement();
}
