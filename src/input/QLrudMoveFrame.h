#pragma once

#include <QFrame>
#include <QIcon>

#include "VexExport.h"

/** The vertical bar that carries the move keys. It is as long as the frame is high. */
class VEX_EXPORT QLrudMoveFrame : public QFrame
{
    Q_OBJECT

public:
    explicit QLrudMoveFrame(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QIcon m_base;
    const QSize m_baseSize;
};
