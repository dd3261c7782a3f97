#include "QvexFileModel.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;
constexpr qint64 TiB = 1024 * GiB;

/// These texts are the toolkit's own, and so are their translations.
QString fileSystemText(const char *text)
{
    return QCoreApplication::translate("QFileSystemModel", text);
}

QString fileDialogText(const char *text)
{
    return QCoreApplication::translate("QFileDialog", text, "Match Windows Explorer");
}

QString inUnits(const char *text, qint64 bytes, qint64 unit, int decimals)
{
    const double value = static_cast<double>(bytes) / static_cast<double>(unit);
    return fileSystemText(text).arg(QLocale().toString(value, 'f', decimals));
}

} // namespace

QvexFileModel::QvexFileModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

QvexFileModel::~QvexFileModel() = default;

QString QvexFileModel::sizeText(qint64 bytes)
{
    if (bytes >= TiB) {
        return inUnits("%1 TB", bytes, TiB, 3);
    }
    if (bytes >= GiB) {
        return inUnits("%1 GB", bytes, GiB, 2);
    }
    if (bytes >= MiB) {
        return inUnits("%1 MB", bytes, MiB, 1);
    }
    if (bytes >= KiB) {
        return fileSystemText("%1 KB").arg(QString::number(bytes / KiB));
    }
    return fileSystemText("%1 bytes").arg(QString::number(bytes));
}

QString QvexFileModel::typeText(const QString &name, bool isDir)
{
    if (isDir) {
        return fileDialogText("File Folder");
    }
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString suffix = dot < 0 ? QString() : name.sliced(dot + 1);
    const QString file = fileDialogText("File");
    return suffix.isEmpty() ? file : suffix + u' ' + file;
}

QString QvexFileModel::columnText(int column)
{
    static constexpr const char *texts[] {"Name", "Size", "Type", "Date Modified"};
    return column >= 0 && column < ColumnCount ? fileSystemText(texts[column]) : QString();
}
