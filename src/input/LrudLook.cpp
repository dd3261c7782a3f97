#include "LrudLook.h"

#include <QFrame>
#include <QImageReader>
#include <QPushButton>

using namespace Qt::StringLiterals;

void LrudLook::dress(QFrame *frame)
{
    frame->setAttribute(Qt::WA_TranslucentBackground);
    frame->setStyleSheet(u"QFrame { background-color: gray; border-radius: 2px; border-width: 1px;"
                         " border-style: solid; border-color: #505050; }"_s);
}

void LrudLook::dress(QPushButton *key, const QString &picture)
{
    const QSize size = QImageReader(picture).size();
    key->setIcon(QIcon(picture));
    key->setIconSize(size);
    key->setFixedSize(size);
    key->setFocusPolicy(Qt::NoFocus);
    key->setStyleSheet(u"background-color: transparent; border: none; outline: none;"_s);
}
