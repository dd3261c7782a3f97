#include "QNumpadFrame.h"

#include "LrudLook.h"

QNumpadFrame::QNumpadFrame(QWidget *parent)
    : QFrame(parent)
{
    LrudLook::dress(this);
}
