#pragma once

#include <QProxyStyle>

#include "VexExport.h"

/** Gives menus icons of 24 x 24 and leaves everything else to the style below. */
class VEX_EXPORT MyMenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /**
     * Takes @p base over. The style of the application or of another widget, which others own, may
     * be given as well: a new one of its kind is used then. Without a base it is the platform's.
     */
    explicit MyMenuStyle(QStyle *base = nullptr);

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
};
