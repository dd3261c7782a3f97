// The operations on files and directories.

#include <cerrno>

#include "FcpServant.h"
#include "FileHandles.h"
#include "FileListing.h"
#include "LoggedCall.h"
#include "Storage.h"

namespace {

/// Calls @p operation with the normalised paths. EACCES when one of them leads out of the storage.
template<typename Operation, typename... Paths>
int withPaths(Operation operation, const Paths *...paths)
{
    if (CallContext::current()->mustFail) {
        return EIO;
    }
    const auto apply = [&](const auto &...normalised) {
        return (normalised && ...) ? operation(*normalised...) : EACCES;
    };
    return apply(Storage::normalised(paths)...);
}

} // namespace

char *FcpServant::newDirectory(const char *path)
{
    LoggedCall call(m_parts.log, "newDirectory", path);
    std::string created;
    withPaths(
        [&](const std::string &parent) { return m_parts.storage.makeDirectory(parent, created); },
        path);
    if (!created.empty()) {
        created.insert(0, 1, '/');
    }
    call.result(created.c_str());
    return CORBA::string_dup(created.c_str());
}

CORBA::Long FcpServant::renameFileDirectory(const char *directory, const char *oldName,
                                            const char *newName)
{
    LoggedCall call(m_parts.log, "renameFileDirectory", directory, oldName, newName);
    return call.result(CORBA::Long(withPaths(
        [&](const std::string &path) { return m_parts.storage.rename(path, oldName, newName); },
        directory)));
}

CORBA::Long FcpServant::moveFileDirectory(const char *source, const char *destination)
{
    LoggedCall call(m_parts.log, "moveFileDirectory", source, destination);
    CallContext::current()->expectToTakeLong();
    return call.result(
        CORBA::Long(withPaths([&](const std::string &from,
                                  const std::string &to) { return m_parts.storage.move(from, to); },
                              source, destination)));
}

CORBA::Long FcpServant::copyFileDirectory(const char *source, const char *destination)
{
    LoggedCall call(m_parts.log, "copyFileDirectory", source, destination);
    CallContext::current()->expectToTakeLong();
    return call.result(
        CORBA::Long(withPaths([&](const std::string &from,
                                  const std::string &to) { return m_parts.storage.copy(from, to); },
                              source, destination)));
}

CORBA::Long FcpServant::deleteFileDirectory(const char *path)
{
    LoggedCall call(m_parts.log, "deleteFileDirectory", path);
    CallContext::current()->expectToTakeLong();
    return call.result(CORBA::Long(withPaths(
        [&](const std::string &removed) { return m_parts.storage.remove(removed); }, path)));
}

CORBA::Boolean FcpServant::getFileSystemItems(const char *directory, CORBA::Long filterFlags,
                                              const FileSystemFilterCORBASeq &patterns,
                                              FileSystemItemCORBASeq_out items)
{
    LoggedCall call(m_parts.log, "getFileSystemItems", directory, filterFlags, patterns.length());
    CallContext::current()->expectToTakeLong();
    std::vector<std::string> names;
    for (CORBA::ULong i = 0; i < patterns.length(); ++i) {
        names.emplace_back(patterns[i].filter);
    }
    items = new FileSystemItemCORBASeq;
    const int error = withPaths(
        [&](const std::string &path) {
            return listDirectory(m_parts.storage, path, QDir::Filters(QFlag(filterFlags)), names,
                                 *items.ptr());
        },
        directory);
    return call.result(error == 0, items->length());
}

FileSystemResult FcpServant::openFile(const char *path, CORBA::Boolean write,
                                      CORBA::Boolean overwrite, CORBA::Long &handle)
{
    LoggedCall call(m_parts.log, "openFile", path, bool(write), bool(overwrite));
    const CallContext &context = *CallContext::current();
    const auto normalised = Storage::normalised(path);
    handle = 0;
    if (context.mustFail || !normalised) {
        return call.result(FS_ERROR);
    }
    const FileSystemResult result =
        m_parts.files.open(context.connection->id, *normalised, write, overwrite, handle);
    return call.result(result, handle);
}

FileSystemResult FcpServant::closeFile(CORBA::Long handle)
{
    LoggedCall call(m_parts.log, "closeFile", handle);
    const CallContext &context = *CallContext::current();
    return call.result(context.mustFail ? FS_ERROR
                                        : m_parts.files.close(context.connection->id, handle));
}
