#pragma once

#include <QFrame>
#include <QIcon>

#include "VexExport.h"

/** The panel behind the arrow keys. Only where its picture lies it is there to be touched. */
class VEX_EXPORT QLrudFrame : public QFrame
{
    Q_OBJECT

public:
    explicit QLrudFrame(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QIcon m_base;
    const QSize m_baseSize;
};
