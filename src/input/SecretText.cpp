#include "SecretText.h"

#include <string.h>

#include <algorithm>

bool SecretText::insert(qsizetype at, QStringView text)
{
    if (text.size() > Capacity - m_size) {
        return false;
    }
    char16_t *const place = m_characters.data() + at;
    std::copy_backward(place, m_characters.data() + m_size,
                       m_characters.data() + m_size + text.size());
    std::copy_n(text.utf16(), text.size(), place);
    m_size += text.size();
    return true;
}

bool SecretText::assign(QStringView text)
{
    if (text.size() > Capacity) {
        return false;
    }
    clear();
    return insert(0, text);
}

void SecretText::remove(qsizetype at, qsizetype count)
{
    char16_t *const end = m_characters.data() + m_size;
    char16_t *const rest =
        std::copy(m_characters.data() + at + count, end, m_characters.data() + at);
    explicit_bzero(rest, size_t(end - rest) * sizeof(char16_t));
    m_size -= count;
}

void SecretText::clear()
{
    // A plain loop over what is never read again may be left out by the compiler.
    explicit_bzero(m_characters.data(), sizeof m_characters);
    m_size = 0;
}

QString SecretText::toString() const
{
    return QString(reinterpret_cast<const QChar *>(m_characters.data()), m_size);
}

bool SecretText::equals(const SecretText &other) const
{
    auto difference = static_cast<quint64>(m_size ^ other.m_size);
    for (size_t i = 0; i < m_characters.size(); ++i) {
        difference |= quint64(m_characters[i] ^ other.m_characters[i]);
    }
    return difference == 0;
}

void SecretText::wipe(QString &text)
{
    explicit_bzero(text.data(), size_t(text.size()) * sizeof(QChar));
    text.clear();
}
