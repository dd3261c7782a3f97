#pragma once

#include <QPushButton>

/// A tab that hangs from the frame's top edge, with its text below the edge. Paints itself.
class SlideUpButton : public QPushButton
{
    Q_OBJECT

public:
    explicit SlideUpButton(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
