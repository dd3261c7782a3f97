#pragma once

#include <QPushButton>

#include "VexExport.h"

/** Leads to the window before or after, from the lower corner on that side. 50 by 60 pixels. */
class VEX_EXPORT FwNavigationButton : public QPushButton
{
    Q_OBJECT

public:
    enum ButtonSide { Left, Right };
    Q_ENUM(ButtonSide)

    explicit FwNavigationButton(ButtonSide side, QWidget *parent = nullptr);

    ButtonSide side() const { return m_side; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateText();

    const ButtonSide m_side;
};
