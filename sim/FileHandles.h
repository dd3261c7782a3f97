#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <shared_mutex>
#include <string>
#include <unordered_map>

#include <FcpContents.hh>

class Storage;
struct OpenFile;

/**
 * The files that clients have open.
 *
 * A handle belongs to the connection that opened it: any other connection, and a stale handle, gets
 * FS_ERROR. Numbers begin at random and are not used again soon.
 *
 * An upload is written to "name.part" beside its target and takes the target's place when it is
 * closed, so a target is always whole, and an upload that was cut off is visible as what it is. Two
 * uploads never share a partial file.
 *
 * From any thread. No lock is held over the reading and writing of files but the file's own.
 */
class FileHandles
{
public:
    /** @p sync: whether an upload reaches the disk before its close is answered. */
    FileHandles(const Storage &storage, bool sync);
    ~FileHandles();

    /** @p path is normalised. */
    FileSystemResult open(std::uint64_t connection, const std::string &path, bool write,
                          bool overwrite, CORBA::Long &handle);
    FileSystemResult close(std::uint64_t connection, CORBA::Long handle);
    FileSystemResult push(std::uint64_t connection, CORBA::Long handle, const CORBA::Octet *data,
                          CORBA::ULong size);
    /**
     * Reads up to @p wanted bytes. @p bytes refers to memory of the calling thread, which the next
     * pull() on it uses again.
     */
    FileSystemResult pull(std::uint64_t connection, CORBA::Long handle, CORBA::Long wanted,
                          OctetSequence &bytes);
    /** Closes what a connection that is gone has left open; its uploads stay partial. */
    void abandon(std::uint64_t connection);

private:
    std::shared_ptr<OpenFile> find(std::uint64_t connection, CORBA::Long handle) const;
    CORBA::Long add(std::shared_ptr<OpenFile> file);

    const Storage &m_storage;
    const bool m_sync;
    mutable std::shared_mutex m_mutex;
    std::unordered_map<CORBA::Long, std::shared_ptr<OpenFile>> m_files;
    std::atomic<std::uint32_t> m_next;
};
