#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

#include <FcpInterfaces.hh>

#include "VexExport.h"

class FcpAppCORBA;

/**
 * A file on the instrument while it is open: the handle is closed when the object goes.
 *
 * It differs from FcpAppCORBA's own file operations in two things. @c FS_OK means that the
 * controller said so: whatever goes wrong with the link gives @c FS_ERROR. And all calls go to the
 * link on which the file was opened: after a reconnect they fail instead of reaching another
 * controller's handle of the same number. A link that is lost here is lost for the proxy too, which
 * reports it as usual.
 *
 * For one thread at a time.
 */
class VEX_EXPORT FcpRemoteFile
{
public:
    /** @p controller is not owned and must outlive this object. */
    explicit FcpRemoteFile(FcpAppCORBA *controller);
    /** Closes the file if it is still open. */
    ~FcpRemoteFile();

    FcpRemoteFile(const FcpRemoteFile &) = delete;
    FcpRemoteFile &operator=(const FcpRemoteFile &) = delete;

    /** Opens @p path; one that was open is closed first. */
    [[nodiscard]] FileSystemResult open(const QString &path, bool write, bool overwrite);
    /** Whether the controller holds a handle for this object. */
    bool isOpen() const;
    [[nodiscard]] FileSystemResult push(const char *data, long size);
    /**
     * Reads up to @p wanted bytes. @p bytes shows them until the next call or the end of this
     * object, uncopied; it is empty on failure.
     */
    [[nodiscard]] FileSystemResult pull(long wanted, QByteArrayView &bytes);
    /** What the controller answered to the close, @c FS_ERROR when nothing is open. */
    FileSystemResult close();

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
