#pragma once

/**
 * Lets operator new run out of memory on demand, on the thread that asks for it, in the libraries
 * too.
 *
 * Not part of the support library: a program that is built with its source has its allocation
 * functions replaced.
 */
class FailingAllocations
{
public:
    /** So many allocations of this thread succeed before one throws std::bad_alloc. */
    explicit FailingAllocations(int successes);
    FailingAllocations(const FailingAllocations &) = delete;
    FailingAllocations &operator=(const FailingAllocations &) = delete;
    ~FailingAllocations();

    /** Whether one has failed. */
    bool hasFailed() const;
};
