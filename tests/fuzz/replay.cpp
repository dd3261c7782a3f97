// Runs a fuzzer's function over the files of a directory, without the fuzzer.

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    const QDir corpus(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    int count = 0;
    for (const QString &name : corpus.entryList(QDir::Files)) {
        QFile file(corpus.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s cannot be read\n", qPrintable(file.fileName()));
            return 1;
        }
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()),
                               static_cast<size_t>(bytes.size()));
        ++count;
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
