#include "CallLog.h"

#include <cerrno>

int CallLog::open(const std::string &fileName)
{
    m_file.reset(std::fopen(fileName.c_str(), "ae"));
    return m_file ? 0 : errno;
}

void CallLog::write(std::uint64_t connection, const std::string &call, const std::string &result)
{
    const std::string line =
        std::to_string(connection) + ' ' + call + (result.empty() ? "" : " = " + result) + '\n';
    const std::lock_guard lock(m_mutex);
    std::fwrite(line.data(), 1, line.size(), m_file.get());
    std::fflush(m_file.get());
}

void CallLog::append(std::string &text, const char *value)
{
    text += '"';
    for (const char *at = value; *at != '\0'; ++at) {
        const auto byte = static_cast<unsigned char>(*at);
        if (byte == '"' || byte == '\\') {
            text += '\\';
            text += *at;
        } else if (byte < 0x20 || byte == 0x7F) {
            char escaped[5];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", byte);
            text += escaped;
        } else {
            text += *at;
        }
    }
    text += '"';
}

void CallLog::append(std::string &text, const std::string &value)
{
    text += value;
}

void CallLog::append(std::string &text, bool value)
{
    text += value ? "true" : "false";
}
