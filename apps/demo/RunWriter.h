#pragma once

#include <QXmlStreamWriter>

class QIODevice;
class RunFile;
class Run;

/**
 * Writes a run as XML. The head comes first, one element a line: who looks for it in the file reads
 * no more than ten lines of it.
 */
class RunWriter
{
public:
    /// @p device is open and not owned.
    explicit RunWriter(QIODevice &device);

    void write(const RunFile &file);

private:
    void writeSettings(const Run &run);
    void writeEvents(const Run &run);
    void writeSamples(const Run &run);
    void writeBlock(const Run &run, int first, int last);

    QXmlStreamWriter m_xml;
};
