#pragma once

#include <QAbstractButton>

#include "VexExport.h"

/**
 * One tab of a FwButtonTabWidget: a button that stays down while its page is shown.
 *
 * A text that doesn't fit is elided; it then is the tool tip as well.
 */
class VEX_EXPORT TabButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit TabButton(QWidget *parent = nullptr);

    /** To be used in place of setText(). */
    void setTabText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect textRect() const;
    QRect iconRect() const;
    QString elidedText() const;
    void updateToolTip();
};
