#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <type_traits>

/**
 * Writes a line for each call that was carried out: the number of the connection it came over, the
 * operation with its arguments, and the result.
 * @code
 * 3 openFile("/Internal/a.txt", true, false) = FS_OK 71264
 * @endcode
 * Contents are given by their size, texts in double quotes with \", \\ and \xHH for what does not
 * print. Each line reaches the file before the call is answered.
 */
class CallLog
{
public:
    /** @return 0 or an errno value */
    int open(const std::string &fileName);
    bool isOpen() const { return m_file != nullptr; }
    void write(std::uint64_t connection, const std::string &call, const std::string &result);

    static void append(std::string &text, const char *value);
    static void append(std::string &text, const std::string &value);
    static void append(std::string &text, bool value);
    template<typename Number>
    requires(std::is_integral_v<Number> && !std::is_same_v<Number, bool>) static void append(
        std::string &text, Number value)
    {
        text += std::to_string(value);
    }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE *)> m_file {nullptr, std::fclose};
    std::mutex m_mutex;
};
