#pragma once

#include <QString>

/** The machine that the figures come from, in a line: processor, memory, system. */
QString describeMachine();

/**
 * Keeps the processors from going to sleep while it lives, where the kernel allows it (root may ask
 * it): waking one, a virtual one above all, takes longer than much of what is measured, and whether
 * one sleeps is chance.
 */
class AwakeProcessors
{
public:
    AwakeProcessors();
    ~AwakeProcessors();

    AwakeProcessors(const AwakeProcessors &) = delete;
    AwakeProcessors &operator=(const AwakeProcessors &) = delete;

    bool isGranted() const { return m_request >= 0; }

private:
    int m_request = -1;
};
