#pragma once

#include <QProxyStyle>

#include "VexExport.h"

/**
 * Cuts texts that are too long for their button, with an ellipsis at the right end, line by line.
 * An icon beside the text keeps its room.
 *
 * A button's text() is not touched, so it is still what assistive technology reads. A text that
 * does not fit is the button's tool tip, unless it has one.
 */
class VEX_EXPORT ElidedButtonStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** As MyMenuStyle. */
    explicit ElidedButtonStyle(QStyle *base = nullptr);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};
