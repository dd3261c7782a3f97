#pragma once

#include <QString>

#include <array>

#include "VexExport.h"

/**
 * A short text that does not stay in memory: it lives in one place, and is overwritten when it is
 * cleared, shortened or destroyed.
 *
 * What toString() returns, and what was handed over as a QString, are copies that nobody overwrites
 * but wipe(); nor is anything done about swap space and core dumps.
 */
class VEX_EXPORT SecretText
{
public:
    static constexpr qsizetype Capacity = 128;

    SecretText() = default;
    ~SecretText() { clear(); }
    Q_DISABLE_COPY_MOVE(SecretText)

    /** Changes nothing and gives false when there is no room for all of @p text. */
    [[nodiscard]] bool insert(qsizetype at, QStringView text);
    [[nodiscard]] bool assign(QStringView text);
    void remove(qsizetype at, qsizetype count);
    void clear();

    qsizetype size() const { return m_size; }
    QString toString() const;
    /** Takes the same time whatever the two texts are, and however long. */
    bool equals(const SecretText &other) const;

    /** Overwrites a string that nobody else has a copy of, and empties it. */
    static void wipe(QString &text);

private:
    std::array<char16_t, Capacity> m_characters {}; ///< zeros behind the last one
    qsizetype m_size = 0;
};
