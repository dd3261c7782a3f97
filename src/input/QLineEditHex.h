#pragma once

#include "QLineEditRadix.h"

/** Shows a number in hexadecimal digits, in upper case. */
class VEX_EXPORT QLineEditHex : public QLineEditRadix
{
    Q_OBJECT

public:
    explicit QLineEditHex(QWidget *parent = nullptr);
};
