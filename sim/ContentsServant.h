#pragma once

#include <FcpContents.hh>

class CallLog;
class FileHandles;

/**
 * The two operations that carry file contents, as octets. Never activated: FcpServant hands it the
 * calls of these two operations.
 */
class ContentsServant : public POA_FcpContentsCORBA
{
public:
    ContentsServant(FileHandles &files, CallLog &log);

    FileSystemResult pushFileContents(CORBA::Long handle, const OctetSequence &bytes) override;
    FileSystemResult pullFileContents(CORBA::Long handle, CORBA::Long wanted,
                                      OctetSequence_out bytes) override;

private:
    FileHandles &m_files;
    CallLog &m_log;
};
