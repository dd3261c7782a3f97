#pragma once

#include "QLineEditRadix.h"

/** Shows a number in digits of two bits each, 0 to 3. */
class VEX_EXPORT QLineEditBase4 : public QLineEditRadix
{
    Q_OBJECT

public:
    explicit QLineEditBase4(QWidget *parent = nullptr);
};
