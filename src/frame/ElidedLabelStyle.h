#pragma once

#include <QProxyStyle>

#include "VexExport.h"

/**
 * Cuts texts that are too long for their label, with an ellipsis in the middle, line by line. Rich
 * and selectable texts, which no style draws, and those that wrap stay whole.
 *
 * A label's text() is not touched, so it is still what assistive technology reads. A text that does
 * not fit is the label's tool tip, unless it has one.
 */
class VEX_EXPORT ElidedLabelStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** As MyMenuStyle. */
    explicit ElidedLabelStyle(QStyle *base = nullptr);

    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};
