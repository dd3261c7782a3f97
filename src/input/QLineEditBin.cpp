#include "QLineEditBin.h"

#include "QvexNumpadDlg.h"

QLineEditBin::QLineEditBin(QWidget *parent)
    : QLineEditRadix(QvexNumpadDlg::Binary, parent)
{
}
