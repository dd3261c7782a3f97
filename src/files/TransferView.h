#pragma once

#include <QPointer>
#include <QWidget>

#include "FilePlace.h"
#include "FileTransfer.h"

class ConflictQuestions;
class FilePane;
class LinkWatch;
class QToolButton;
class TransferPanel;

/** Two panes side by side, and what carries files from one to the other. */
class TransferView : public QWidget
{
    Q_OBJECT

public:
    TransferView(const FileStores &stores, LinkWatch *link, QWidget *parent);
    /** Cancels a transfer and waits for it. */
    ~TransferView() override;

    FilePane *left() const { return m_left; }
    FilePane *right() const { return m_right; }
    /** The one last touched. */
    FilePane *active() const { return m_active; }
    bool isTransferring() const;

public Q_SLOTS:
    void cancel();

Q_SIGNALS:
    void transferEnded();

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateText();
    void arrange();
    void setActive(FilePane *pane);
    void updateArrows();
    void carry(FilePane *from, FilePane *to);
    void begin(FileTransfer::Kind kind, const QStringList &paths, FilePane *to);
    void end(const TransferSummary &summary);
    void tell(const TransferSummary &summary);

    const FileStores m_stores;
    LinkWatch *m_link;
    FilePane *m_left;
    FilePane *m_right;
    FilePane *m_active;
    QToolButton *m_toRight;
    QToolButton *m_toLeft;
    TransferPanel *m_panel;
    ConflictQuestions *m_questions;
    QPointer<FilePane> m_target;
    FileTransfer *m_transfer = nullptr; ///< a child; null when none runs
};
