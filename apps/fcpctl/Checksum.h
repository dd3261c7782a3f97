#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <memory>

/// SHA-256 by OpenSSL, which is several times as fast as Qt's own.
class Checksum
{
public:
    Checksum();
    ~Checksum();
    Q_DISABLE_COPY_MOVE(Checksum)

    void add(QByteArrayView bytes);
    /// The digest of what was added, in hexadecimal. Ends this object's use.
    QByteArray hex();

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
