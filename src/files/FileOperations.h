#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

#include "FilePlace.h"
#include "QvexFileModel.h"

class QWidget;
class QvexRemoteFileModel;

/**
 * What a person does with the entries of a pane: makes, renames, copies, moves and deletes them.
 * Asks before it deletes. The ends are told by signals, never by a box.
 */
class FileOperations : public QObject
{
    Q_OBJECT

public:
    /** Questions are drawn in the dialog that @p pane is in, which owns this. */
    explicit FileOperations(QWidget *pane);

    /** What all others work on; an operation under way goes on, but is no longer told of. */
    void setPlace(QvexFileModel *model, const FilePlace &place);

    /** Ends in folderMade() or failed(); on the instrument some time later, as for rename(). */
    void makeFolder(const QModelIndex &parent);
    void rename(const QModelIndex &index, const QString &name);
    /** Asks, naming what will go. @p entries are the model's. */
    void remove(const QModelIndexList &entries);
    /** Notes files for paste(). */
    void pickUp(const QStringList &paths, bool moves);
    /** Files picked up can be put down in the same place only. */
    bool canPaste() const;
    void paste(const QString &folder);
    void copy(const QStringList &paths, const QString &folder);
    void cancel();

Q_SIGNALS:
    void started(const QString &text);
    void done(const QString &text);
    void failed(const QString &text);
    void pickedUp();
    void folderMade(const QString &path);

private:
    void connectInstrument(const QvexRemoteFileModel *model);
    void endMaking(long result, const QString &path);
    void endRenaming(long result, const QString &oldName, const QString &newName);
    void start(long result, const QString &text, const QString &doneText);
    void end(long result, const QString &where);

    QWidget *m_pane;
    QPointer<QvexFileModel> m_model;
    FilePlace m_place;
    QPointer<QvexFileModel> m_source; ///< of what was picked up
    QStringList m_pickedUp;
    bool m_moves = false;
    QString m_doneText;
};
