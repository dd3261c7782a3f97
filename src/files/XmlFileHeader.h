#pragma once

#include <QByteArray>
#include <QObject>

#include "FileData.h"
#include "VexExport.h"

class QFile;

/**
 * Reads the heads of saved files: of any file, however large, the first ten lines, and of each
 * line at most 300 bytes (what a longer line has beyond them counts as the next line).
 *
 * A head is valid when it begins with "<?xml" and holds "<!DOCTYPE VEX>". The root's name and the
 * nesting of the elements of FileData are not looked at. A head that declares entities is read as
 * far as the declaration: no application writes any, and they are good only for choking a parser.
 *
 * Methods may be called from any thread, from several at once on different files.
 */
class VEX_EXPORT XmlFileHeader : public QObject
{
    Q_OBJECT

public:
    static constexpr int LineCount = 10;
    static constexpr int LineLength = 300; ///< bytes

    XmlFileHeader();
    ~XmlFileHeader() override;

    /**
     * Opens @p file, reads its head and closes it again. Fields whose elements are not in the head
     * are left as they are.
     * @return whether the head is valid; false, too, for what is open already, can't be opened, or
     * is no regular file.
     */
    bool getFileInfo(QFile *file, FileData *data);
    /** Likewise with a single read from the disk, for looking through many files. */
    bool getFileInfo(const QString &path, FileData *data);
    /** Likewise of an open file that is known to be regular, read from where it is; it stays open.
     */
    bool getFileInfo(int fd, FileData *data);

private:
    bool parse(const QByteArray &head, FileData *data);
};
