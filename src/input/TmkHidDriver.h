#pragma once

#include <QLibrary>

#include <array>
#include <cstddef>

#include "VexHidDriver.h"

/**
 * The keypad's own driver, a closed library that is loaded when it is there.
 *
 * A keypad that is unplugged is looked for again every second, so listen() does not fail for it.
 */
class VEX_EXPORT TmkHidDriver : public VexHidDriver
{
public:
    explicit TmkHidDriver(const QString &library = QStringLiteral("tmk_hid"));
    ~TmkHidDriver() override;

    /** Whether the library is there with all its entry points. */
    bool isInstalled() const { return m_listen != nullptr; }

    int prepare() override;
    int open() override;
    int setActive(bool on) override;
    int listen(Report &report) override;
    int close() override;

private:
    int lookForItAgain();

    // What the driver keeps behind these it knows itself: they are handed back as they come.
    using Handle = void *;
    using InitFunction = int (*)(void *context);
    using OpenFunction = int (*)(Handle *handle);
    using ActiveFunction = int (*)(Handle handle, int on);
    using ListenFunction = int (*)(Handle handle, unsigned char *type, unsigned short *value);
    using CloseFunction = int (*)(Handle *handle);

    QLibrary m_library;
    InitFunction m_init = nullptr;
    OpenFunction m_open = nullptr;
    ActiveFunction m_active = nullptr;
    ListenFunction m_listen = nullptr;
    CloseFunction m_close = nullptr;
    alignas(std::max_align_t) std::array<std::byte, 1024> m_context = {};
    Handle m_handle = nullptr;
    bool m_isLost = false;
    int m_tries = 0; ///< pauses since it was looked for
};
