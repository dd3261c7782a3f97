#include "ProxyBase.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

QStyle *proxyBase(QStyle *base)
{
    if (!base || (base != QApplication::style() && !base->inherits("QStyleSheetStyle"))) {
        return base;
    }
    const QStyle *bottom = base;
    while (const auto *proxy = qobject_cast<const QProxyStyle *>(bottom)) {
        bottom = proxy->baseStyle();
    }
    return QStyleFactory::create(bottom->name());
}
