#include "Checksum.h"

#include <openssl/evp.h>

#include <new>

struct Checksum::Private
{
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context {EVP_MD_CTX_new(),
                                                                     &EVP_MD_CTX_free};
};

Checksum::Checksum()
    : d(std::make_unique<Private>())
{
    // These fail for want of memory only.
    if (!d->context || EVP_DigestInit_ex(d->context.get(), EVP_sha256(), nullptr) != 1) {
        throw std::bad_alloc();
    }
}

Checksum::~Checksum() = default;

void Checksum::add(QByteArrayView bytes)
{
    if (EVP_DigestUpdate(d->context.get(), bytes.data(), static_cast<std::size_t>(bytes.size()))
        != 1) {
        throw std::bad_alloc();
    }
}

QByteArray Checksum::hex()
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    if (EVP_DigestFinal_ex(d->context.get(), digest, &length) != 1) {
        throw std::bad_alloc();
    }
    return QByteArray(reinterpret_cast<const char *>(digest), static_cast<qsizetype>(length))
        .toHex();
}
