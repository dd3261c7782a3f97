#pragma once

#include <QCoreApplication>
#include <QXmlStreamReader>

class RunFile;
class Run;

/**
 * Reads a run from XML that may be damaged or hostile: of what it finds, only numbers within their
 * range get into the run, and nothing in the file makes it work longer or take more memory than in
 * proportion to the file's size.
 */
class RunReader
{
    Q_DECLARE_TR_FUNCTIONS(RunReader)

public:
    explicit RunReader(const QByteArray &contents);

    /// Whether all of it was read; @p file holds a part of it otherwise.
    bool read(RunFile &file);
    /// What is wrong with the file, for a person.
    QString error() const { return m_error; }

private:
    bool isScreened(const QByteArray &contents);
    bool readDocumentType();
    void readElement(RunFile &file);
    void readHead(RunFile &file);
    void readSettings(Run &run);
    void readEvent(Run &run);
    void readSamples(Run &run);
    void readSample(Run &run, QStringView word, double time);

    double number(QStringView text, double least, double most);
    double attribute(const QString &name, double least, double most);
    void fail(const QString &reason);

    QXmlStreamReader m_xml;
    QString m_error;
};
