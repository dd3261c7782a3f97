#pragma once

#include <QString>

#include <compare>
#include <optional>

#include <VexExport.h>

/**
 * A decimal number with 18 digits after the point, exactly: what a person types and steps through
 * has no binary fractions in it.
 *
 * It reaches from -2^64 to 2^64, and so holds every 64-bit integer. Arithmetic that would leave
 * this range ends at its limit.
 */
class VEX_EXPORT DecimalNumber
{
public:
    static constexpr int Decimals = 18;

    constexpr DecimalNumber() = default;
    static DecimalNumber fromInt(qint64 value);
    static DecimalNumber fromUnsigned(quint64 value);
    /** Its shortest decimal text that reads back as the same double; 0 when it is not a number. */
    static DecimalNumber fromDouble(double value);
    /**
     * Digits with at most one point and a sign in front. Nothing when it is another text, has no
     * digit or too many after the point, or is out of range.
     */
    static std::optional<DecimalNumber> fromText(QStringView text);
    /** 10 to the power of @p exponent, which is -18 to 19. */
    static DecimalNumber powerOfTen(int exponent);

    /** In fixed notation with @p decimals digits after the point, half rounded away from zero. */
    QString toText(int decimals) const;
    double toDouble() const;
    /** Toward zero, at most what the type holds. */
    qint64 toInt() const;
    quint64 toUnsigned() const;

    bool isNegative() const { return m_units < 0; }
    /** Whether it has no more than @p decimals digits after the point. */
    bool fits(int decimals) const;
    DecimalNumber rounded(int decimals) const;

    DecimalNumber operator+(DecimalNumber other) const;
    DecimalNumber operator-(DecimalNumber other) const;
    DecimalNumber operator-() const;
    DecimalNumber times(qint64 factor) const;
    /** Times 10 to the power of @p exponent; nothing when digits would get lost. */
    std::optional<DecimalNumber> shifted(int exponent) const;

    // clang-tidy 14 takes the result for a pointer.
    friend constexpr auto // NOLINTNEXTLINE(modernize-use-nullptr)
    operator<=>(DecimalNumber one, DecimalNumber other) = default;

private:
    __extension__ using Units = __int128;

    static DecimalNumber clamped(Units units);
    static Units unit(int exponent);

    Units m_units = 0; ///< of 10^-18
};
