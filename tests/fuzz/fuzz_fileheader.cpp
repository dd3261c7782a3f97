// The head of a saved file, read in both ways.

#include <QFile>
#include <QTemporaryFile>

#include <cstdint>
#include <cstdlib>

#include "files/XmlFileHeader.h"

namespace {

void demand(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

bool isSame(const FileData &left, const FileData &right)
{
    return left.ServerId == right.ServerId && left.AppType == right.AppType
        && left.AppTech == right.AppTech && left.Ports == right.Ports
        && left.Timestamp == right.Timestamp;
}

} // namespace

extern "C" __attribute__((visibility("default"))) int LLVMFuzzerTestOneInput(const uint8_t *data,
                                                                             size_t size)
{
    static QTemporaryFile place(QStringLiteral("/dev/shm/fileheader-XXXXXX"));
    if (!place.isOpen()) {
        demand(place.open());
    }
    demand(place.resize(0) && place.seek(0));
    place.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    demand(place.flush());

    XmlFileHeader reader;
    QFile file(place.fileName());
    FileData byLines;
    FileData atOnce;
    const bool isValid = reader.getFileInfo(&file, &byLines);
    demand(!file.isOpen());
    demand(reader.getFileInfo(place.fileName(), &atOnce) == isValid);
    demand(isSame(byLines, atOnce));
    demand(isValid || isSame(byLines, FileData()));
    demand(byLines.AppType.size() <= XmlFileHeader::LineCount * XmlFileHeader::LineLength);
    return 0;
}
