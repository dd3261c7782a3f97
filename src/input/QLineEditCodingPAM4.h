#pragma once

#include "QLineEditRadix.h"

/** Shows a number in PAM4 symbols of two bits each, by Gray code: 00 is 0, 01 is 1, 11 is 2, 10
 * is 3. */
class VEX_EXPORT QLineEditCodingPAM4 : public QLineEditRadix
{
    Q_OBJECT

public:
    explicit QLineEditCodingPAM4(QWidget *parent = nullptr);
};
