#include "QLineEditCodingPAM4.h"

#include "QvexNumpadDlg.h"

QLineEditCodingPAM4::QLineEditCodingPAM4(QWidget *parent)
    : QLineEditRadix(QvexNumpadDlg::CodingPAM4, parent)
{
}
