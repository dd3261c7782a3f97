#include "QLineEditHex.h"

#include "QvexNumpadDlg.h"

QLineEditHex::QLineEditHex(QWidget *parent)
    : QLineEditRadix(QvexNumpadDlg::Hexadecimal, parent)
{
}
