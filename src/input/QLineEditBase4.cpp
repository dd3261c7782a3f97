#include "QLineEditBase4.h"

#include "QvexNumpadDlg.h"

QLineEditBase4::QLineEditBase4(QWidget *parent)
    : QLineEditRadix(QvexNumpadDlg::Base4, parent)
{
}
