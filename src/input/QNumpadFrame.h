#pragma once

#include <QFrame>

#include "VexExport.h"

/** The frame below the arrow keys that holds the numpad key. */
class VEX_EXPORT QNumpadFrame : public QFrame
{
    Q_OBJECT

public:
    explicit QNumpadFrame(QWidget *parent = nullptr);
};
