#pragma once

#include "FileTransfer.h"
#include "dialogs/QvexDialog.h"

class QCheckBox;

/** Asks what is to be done about a file that is there already. To be run by open(). */
class ConflictDialog : public QvexDialog
{
    Q_OBJECT

public:
    ConflictDialog(const FileConflict &conflict, QWidget *parent);

public Q_SLOTS:
    /** Cancels the transfer. */
    void reject() override;

Q_SIGNALS:
    /** Once, when the dialog ends in any way. */
    void answered(ConflictChoice choice, bool forAll);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeComparison(const FileConflict &conflict);
    QWidget *makeButtons();
    void answer(ConflictChoice choice);

    QCheckBox *m_forAll;
    bool m_answered = false;
};
