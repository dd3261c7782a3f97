#include "MyMenuStyle.h"

#include "ProxyBase.h"

namespace {

constexpr int MenuIconSize = 24;

} // namespace

MyMenuStyle::MyMenuStyle(QStyle *base)
    : QProxyStyle(proxyBase(base))
{
}

int MyMenuStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                             const QWidget *widget) const
{
    if (metric == PM_SmallIconSize) {
        return MenuIconSize;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}
