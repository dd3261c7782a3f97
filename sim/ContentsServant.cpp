#include "ContentsServant.h"

#include "FileHandles.h"
#include "LoggedCall.h"

ContentsServant::ContentsServant(FileHandles &files, CallLog &log)
    : m_files(files)
    , m_log(log)
{
}

FileSystemResult ContentsServant::pushFileContents(CORBA::Long handle, const OctetSequence &bytes)
{
    LoggedCall call(m_log, "pushFileContents", handle, bytes.length());
    const CallContext &context = *CallContext::current();
    return call.result(context.mustFail ? FS_ERROR
                                        : m_files.push(context.connection->id, handle,
                                                       bytes.get_buffer(), bytes.length()));
}

FileSystemResult ContentsServant::pullFileContents(CORBA::Long handle, CORBA::Long wanted,
                                                   OctetSequence_out bytes)
{
    LoggedCall call(m_log, "pullFileContents", handle, wanted);
    const CallContext &context = *CallContext::current();
    bytes = new OctetSequence;
    const FileSystemResult result = context.mustFail
        ? FS_ERROR
        : m_files.pull(context.connection->id, handle, wanted, *bytes.ptr());
    return call.result(result, bytes->length());
}
