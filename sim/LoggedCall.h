#pragma once

#include <string>

#include <FcpInterfaces.hh>

#include "CallContext.h"
#include "CallLog.h"

/**
 * One operation as the log shows it. Costs nothing when the log is off.
 * @code
 * LoggedCall call(m_log, "deleteFileDirectory", path);
 * return call.result(m_storage.remove(path));
 * @endcode
 */
class LoggedCall
{
public:
    template<typename... Arguments>
    LoggedCall(CallLog &log, const char *operation, const Arguments &...arguments)
        : m_log(log)
    {
        if (m_log.isOpen()) {
            m_text = operation;
            m_text += '(';
            [[maybe_unused]] const char *separator = "";
            ((m_text += separator, CallLog::append(m_text, arguments), separator = ", "), ...);
            m_text += ')';
        }
    }

    /** Logs the call with its result and @p more, and returns the result. */
    template<typename Result, typename... More>
    Result result(Result result, const More &...more)
    {
        if (m_log.isOpen()) {
            std::string text;
            append(text, result);
            ((text += ' ', CallLog::append(text, more)), ...);
            write(text);
        }
        return result;
    }

    /** Logs a call without a result. */
    void done()
    {
        if (m_log.isOpen()) {
            write({});
        }
    }

private:
    template<typename Result>
    static void append(std::string &text, const Result &result)
    {
        CallLog::append(text, result);
    }
    static void append(std::string &text, FileSystemResult result)
    {
        static const char *const names[] = {"FS_OK", "FS_ERROR", "FS_EXISTS", "FS_NOMORE"};
        text += names[result];
    }
    static void append(std::string &text, TestStatus status)
    {
        static const char *const names[] = {"TEST_NA", "TEST_LAUNCHED", "TEST_REGISTERED",
                                            "TEST_CLOSING"};
        text += names[status];
    }

    void write(const std::string &result)
    {
        m_log.write(CallContext::current()->connection->id, m_text, result);
    }

    CallLog &m_log;
    std::string m_text;
};
