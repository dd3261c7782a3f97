#include "FileKindIcons.h"

#include <QApplication>
#include <QFileIconProvider>

using namespace Qt::Literals::StringLiterals;

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

QString FileKindIcons::type(const QFileInfo &) const
{
    return u"File"_s; // entries without a type are not shown
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
