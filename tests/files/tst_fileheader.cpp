#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include "GuardedTest.h"
#include "LocalFiles.h"
#include "files/XmlFileHeader.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray Start = "<?xml version=\"1.0\"?>\n<!DOCTYPE VEX>\n";
const QByteArray Five =
    "<r><ServerId>fcp</ServerId>\n<AppType>Bert</AppType>\n<AppTech>PAM4</AppTech>\n"
    "<Ports>1,2</Ports>\n<Timestamp>noon</Timestamp>\n";
const QStringList AllFive {u"fcp"_s, u"Bert"_s, u"PAM4"_s, u"1,2"_s, u"noon"_s};
const QStringList None(5, u"-"_s);

} // namespace

class FileHeaderTest : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsOfAHead_data();
    void fieldsOfAHead();
    void neverWaitsOnWhatIsNoFile();

private:
    QTemporaryDir m_folder;
    XmlFileHeader m_reader;
};

void FileHeaderTest::fieldsOfAHead_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<QStringList>("fields");

    const auto row = [](const char *name, const QByteArray &contents, const QStringList &fields) {
        QTest::newRow(name) << contents << !fields.isEmpty() << (fields.isEmpty() ? None : fields);
    };
    row("lines 3 to 7", Start + Five + QByteArray(100'000, 'x'), AllFive);
    row("document type on line 10", Start.chopped(15) + QByteArray(8, '\n') + "<!DOCTYPE VEX>",
        None);
    row("document type on line 11", Start.chopped(15) + QByteArray(9, '\n') + "<!DOCTYPE VEX>", {});
    row("byte-order mark", "\xef\xbb\xbf" + Start + Five, {});
    row("white space first", ' ' + Start + Five, {});
    row("capitals", Start.toUpper() + Five, {});
    row("empty", "", {});
    row("behind the tenth line", Start + "<r>" + QByteArray(8, '\n') + Five, None);
    row("long lines count several times",
        Start + "<r>" + QByteArray(200, ' ') + '\n' + QByteArray(2000, ' ')
            + "<AppType>A</AppType>\n" + "<AppTech>B</AppTech>",
        {u"-"_s, u"A"_s, u"-"_s, u"-"_s, u"-"_s});
    row("entities are declared",
        "<?xml version=\"1.0\"?><!--<!DOCTYPE VEX>--><!DOCTYPE r [<!ENTITY a \"b\">]>"
        "<r><AppType>&a;</AppType></r>",
        None);
}

void FileHeaderTest::fieldsOfAHead()
{
    QFETCH(QByteArray, contents);
    QFETCH(bool, isValid);
    QFETCH(QStringList, fields);
    const QString path = m_folder.filePath(u"file.xml"_s);
    writeFile(path, contents);
    QFile file(path);

    for (const bool byName : {false, true}) {
        FileData data {u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"-"_s};
        QCOMPARE(byName ? m_reader.getFileInfo(path, &data) : m_reader.getFileInfo(&file, &data),
                 isValid);
        QVERIFY(!file.isOpen());
        QCOMPARE(
            QStringList({data.ServerId, data.AppType, data.AppTech, data.Ports, data.Timestamp}),
            fields);
    }
}

void FileHeaderTest::neverWaitsOnWhatIsNoFile()
{
    const QString pipe = m_folder.filePath(u"pipe.xml"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    FileData data;
    for (const QString &path : {pipe, m_folder.path(), m_folder.filePath(u"none"_s)}) {
        QFile file(path);
        QVERIFY(!m_reader.getFileInfo(&file, &data));
        QVERIFY(!m_reader.getFileInfo(path, &data));
    }
}

QTEST_GUILESS_MAIN(FileHeaderTest)

#include "tst_fileheader.moc"
