#include "FailingAllocations.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int AllSucceed = -1;
constexpr int OneHasFailed = -2;

thread_local int t_left = AllSucceed;

void *allocate(std::size_t size) noexcept
{
    if (t_left == 0) {
        t_left = OneHasFailed;
        return nullptr;
    }
    if (t_left > 0) {
        --t_left;
    }
    return std::malloc(size != 0 ? size : 1);
}

void *allocateOrThrow(std::size_t size)
{
    if (void *memory = allocate(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

} // namespace

FailingAllocations::FailingAllocations(int successes)
{
    t_left = successes;
}

FailingAllocations::~FailingAllocations()
{
    t_left = AllSucceed;
}

bool FailingAllocations::hasFailed() const
{
    return t_left == OneHasFailed;
}

// The whole family is replaced, so that each piece of memory comes from and goes to the same one.

void *operator new(std::size_t size)
{
    return allocateOrThrow(size);
}

void *operator new[](std::size_t size)
{
    return allocateOrThrow(size);
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return allocate(size);
}

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    return allocate(size);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete[](void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void *memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, const std::nothrow_t &) noexcept
{
    std::free(memory);
}

void operator delete[](void *memory, const std::nothrow_t &) noexcept
{
    std::free(memory);
}
