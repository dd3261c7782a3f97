#pragma once

#include <QByteArray>

/** Bytes of all values that no two places of which look alike, the same for the same arguments. */
inline QByteArray patternBytes(qsizetype size, quint32 seed = 1)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = seed * 2654435761U + 1;
    for (char &byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = char(state >> 24);
    }
    return bytes;
}
