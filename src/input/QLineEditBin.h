#pragma once

#include "QLineEditRadix.h"

/** Shows a number in binary digits. */
class VEX_EXPORT QLineEditBin : public QLineEditRadix
{
    Q_OBJECT

public:
    explicit QLineEditBin(QWidget *parent = nullptr);
};
