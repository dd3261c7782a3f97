// A driver of the keypad that plays one scene: a turn, a press, unplugged, plugged again, a turn.

#include <chrono>
#include <thread>

namespace {

int device = 0;
int scene = 0;
int opened = 0;

} // namespace

#define DRIVER_API extern "C" __attribute__((visibility("default")))

DRIVER_API int init_dev(void *context)
{
    return context ? 0 : 1;
}

DRIVER_API int open_hid(void **handle)
{
    *handle = &device;
    return ++opened == 2 ? 1 : 0; // it is not back at the first look
}

DRIVER_API int active_hid(void *handle, int)
{
    return handle == &device ? 0 : 1;
}

DRIVER_API int listen_hid(void *handle, unsigned char *type, unsigned short *value)
{
    if (handle != &device) {
        return 1;
    }
    switch (scene++) {
    case 0:
        *type = 1;
        *value = 1;
        return 0;
    case 1:
        *type = 0;
        *value = 1;
        return 0;
    case 2:
        return 19;
    case 3:
        *type = 1;
        *value = 2;
        return 0;
    default:
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        return 3;
    }
}

DRIVER_API int close_hid(void **handle)
{
    *handle = nullptr;
    return 0;
}
