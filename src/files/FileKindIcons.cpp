#include "FileKindIcons.h"

#include <QApplication>
#include <QFileIconProvider>
#include <QFileInfo>

#include "QvexFileModel.h"

FileKindIcons::FileKindIcons() = default;

FileKindIcons::~FileKindIcons() = default;

QIcon FileKindIcons::icon(IconType) const
{
    return QIcon();
}

QIcon FileKindIcons::icon(const QFileInfo &) const
{
    return QIcon();
}

QString FileKindIcons::type(const QFileInfo &info) const
{
    return QvexFileModel::typeText(info.fileName(), info.isDir());
}

QIcon FileKindIcons::iconOf(IconType type) const
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        return QIcon();
    }
    if (!m_icons) {
        m_icons = std::make_unique<QFileIconProvider>();
    }
    return m_icons->icon(type);
}
