#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "GuardedTest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Run
{
    int code;
    QString output;
    QString errors;
};

QProcessEnvironment withoutDisplay(const QString &runtimeDirectory)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : {u"QT_QPA_PLATFORM"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s}) {
        environment.remove(name);
    }
    environment.insert(u"XDG_RUNTIME_DIR"_s, runtimeDirectory);
    return environment;
}

Run gallery(const QStringList &arguments)
{
    const QTemporaryDir runtimeDirectory;
    QProcess process;
    process.setProcessEnvironment(withoutDisplay(runtimeDirectory.path()));
    process.start(QStringLiteral(VEX_TEST_GALLERY), arguments);
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
        return {-1, {}, process.errorString()};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList pageNames()
{
    return gallery({u"--list"_s}).output.split(u'\n', Qt::SkipEmptyParts);
}

bool isUniform(const QImage &image)
{
    QImage colour(image.size(), image.format());
    colour.fill(image.pixel(0, 0));
    return image == colour;
}

} // namespace

class tst_gallery : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageHasItsPictures_data();
    void everyPageHasItsPictures();
    void grabsOnlyTheNamedPage();
    void badUseIsAnsweredInOneLine_data();
    void badUseIsAnsweredInOneLine();
};

void tst_gallery::everyPageHasItsPictures_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QSize>("size");
    QTest::newRow("plain") << QStringList {} << QString() << QSize(1280, 800);
    QTest::newRow("dense") << QStringList {u"--scale"_s, u"2"_s} << u"@2x"_s << QSize(2560, 1600);
}

void tst_gallery::everyPageHasItsPictures()
{
    QFETCH(QStringList, options);
    QFETCH(QString, suffix);
    QFETCH(QSize, size);
    QTemporaryDir directory;
    const Run run = gallery(options + QStringList {u"--grab"_s, directory.path()});
    QVERIFY2(run.code == 0, qPrintable(run.errors));

    const QDir pictures(directory.path());
    QVector<QImage> seen;
    for (const QString &name : pictures.entryList(QDir::Files)) {
        const QImage image(pictures.filePath(name));
        QVERIFY2(image.size() == size && !isUniform(image), qPrintable(name));
        // A dialog that did not open leaves the page's own picture once more.
        QVERIFY2(!seen.contains(image), qPrintable(name));
        seen.append(image);
    }
    const QStringList pages = pageNames();
    QVERIFY(!pages.isEmpty());
    for (const QString &page : pages) {
        QVERIFY2(pictures.exists(page + suffix + u".png"_s), qPrintable(page));
    }
}

void tst_gallery::grabsOnlyTheNamedPage()
{
    QTemporaryDir directory;
    const Run run = gallery({u"--page"_s, u"artwork"_s, u"--grab"_s, directory.path()});
    QCOMPARE(run.code, 0);
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList {u"artwork.png"_s});
}

void tst_gallery::badUseIsAnsweredInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("unknown option") << QStringList {u"--colour"_s} << 2;
    QTest::newRow("unknown page") << QStringList {u"--page"_s, u"cellar"_s} << 2;
    QTest::newRow("word") << QStringList {u"artwork"_s} << 2;
    QTest::newRow("no directory") << QStringList {u"--grab"_s} << 2;
    QTest::newRow("scale") << QStringList {u"--scale"_s, u"nan"_s} << 2;
    QTest::newRow("no such directory") << QStringList {u"--grab"_s, u"/dev/null/pictures"_s} << 1;
    QTest::newRow("no display") << QStringList {} << 1;
}

void tst_gallery::badUseIsAnsweredInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    const Run run = gallery(arguments);
    QCOMPARE(run.code, code);
    QVERIFY2(run.errors.startsWith(u"gallery: "_s), qPrintable(run.errors));
    QCOMPARE(run.errors.count(u'\n'), 1);
}

QTEST_GUILESS_MAIN(tst_gallery)
#include "tst_gallery.moc"
