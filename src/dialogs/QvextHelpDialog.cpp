#include "QvextHelpDialog.h"

struct QvextHelpDialog::Private
{
};

QvextHelpDialog::QvextHelpDialog()
    : QvextHelpDialog(QString())
{
}

QvextHelpDialog::QvextHelpDialog(QString url)
    : QvexDialog(nullptr, true, true)
{
    QvextHelpDialog::setHelpUrl(url);
}

QvextHelpDialog::~QvextHelpDialog() = default;

void QvextHelpDialog::setHelpUrl(const QString &) { }

void QvextHelpDialog::changeEvent(QEvent *event)
{
    QvexDialog::changeEvent(event);
}
