#pragma once

#include <unistd.h>

#include <utility>

/** Owns a file descriptor. */
class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor = -1)
        : m_descriptor(descriptor)
    {
    }
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileDescriptor() { reset(); }

    int get() const { return m_descriptor; }
    bool isValid() const { return m_descriptor >= 0; }

    void reset()
    {
        if (isValid()) {
            ::close(std::exchange(m_descriptor, -1));
        }
    }

private:
    int m_descriptor;
};
