#include "FileOperations.h"

#include <QPushButton>
#include <QWidget>

#include <cerrno>

#include "FileNames.h"
#include "FilePaths.h"
#include "FileQuestions.h"
#include "QvexRemoteFileModel.h"
#include "dialogs/QvexMessageBox.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString placeText(const FilePlace &place)
{
    switch (place.kind) {
    case FilePlace::Kind::Instrument:
        return FileOperations::tr("the instrument");
    case FilePlace::Kind::Computer:
        return FileOperations::tr("this computer");
    case FilePlace::Kind::Medium:
        return FileOperations::tr("the medium %1").arg(FileNames::shown(place.title));
    }
    return {};
}

} // namespace

FileOperations::FileOperations(QWidget *pane)
    : QObject(pane)
    , m_pane(pane)
{
}

void FileOperations::setPlace(QvexFileModel *model, const FilePlace &place)
{
    m_place = place;
    if (m_model == model) {
        return;
    }
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    if (model) {
        connect(model, &QvexFileModel::deleteComplete, this, &FileOperations::end);
        connect(model, &QvexFileModel::copyComplete, this, &FileOperations::end);
        connect(model, &QvexFileModel::moveComplete, this, &FileOperations::end);
    }
    if (const auto *instrument = qobject_cast<QvexRemoteFileModel *>(model)) {
        connectInstrument(instrument);
    }
    Q_EMIT pickedUp();
}

void FileOperations::connectInstrument(const QvexRemoteFileModel *model)
{
    connect(model, &QvexRemoteFileModel::newDirectoryComplete, this, &FileOperations::endMaking);
    connect(model, &QvexRemoteFileModel::renameComplete, this, &FileOperations::endRenaming);
}

void FileOperations::makeFolder(const QModelIndex &parent)
{
    if (auto *instrument = qobject_cast<QvexRemoteFileModel *>(m_model)) {
        start(instrument->createDirectory(parent), tr("Making a folder\u2026"), {});
        return;
    }
    const QString folder = m_model ? m_model->filePath(parent) : QString();
    const QString name = m_model ? m_model->newDirectory(parent) : QString();
    if (name.isEmpty()) {
        Q_EMIT failed(tr("No folder could be made here: it may be protected."));
    } else {
        Q_EMIT folderMade(FilePaths::join(folder, FilePaths::nameOf(name)));
    }
}

void FileOperations::endMaking(long result, const QString &path)
{
    if (result == QvexFileModel::Done) {
        Q_EMIT done({});
        Q_EMIT folderMade(path);
    } else {
        Q_EMIT failed(m_model->resultText(result));
    }
}

void FileOperations::rename(const QModelIndex &index, const QString &name)
{
    const QString fault = FilePaths::nameFault(name);
    const QString oldName = index.data(QvexFileModel::FileNameRole).toString();
    if (!fault.isEmpty()) {
        Q_EMIT failed(fault);
    } else if (auto *instrument = qobject_cast<QvexRemoteFileModel *>(m_model)) {
        start(instrument->rename(index, name), tr("Renaming\u2026"), {});
    } else {
        const bool isDone = m_model && m_model->setData(index, name, Qt::EditRole);
        endRenaming(isDone ? QvexFileModel::Done : EEXIST, oldName, name);
    }
}

void FileOperations::endRenaming(long result, const QString &oldName, const QString &newName)
{
    if (result == QvexFileModel::Done) {
        Q_EMIT done(tr("Renamed to \"%1\".").arg(newName));
    } else if (result == QvexRemoteFileModel::LinkLost) {
        Q_EMIT failed(m_model->resultText(result));
    } else {
        Q_EMIT failed(tr("\"%1\" can't be renamed to \"%2\": the name may be taken.")
                          .arg(FileNames::shown(oldName), newName));
    }
}

void FileOperations::remove(const QModelIndexList &entries)
{
    QStringList paths;
    QStringList names;
    int folders = 0;
    for (const QModelIndex &entry : entries) {
        const bool isDir = m_model->isDir(entry);
        folders += int(isDir);
        paths += m_model->filePath(entry);
        names += FileNames::shown(entry.data(QvexFileModel::FileNameRole).toString())
            + (isDir ? u"/"_s : QString());
    }
    if (paths.isEmpty()) {
        return;
    }
    auto *box = new QvexMessageBox(m_pane);
    box->setObjectName(u"DeleteQuestion"_s);
    box->setWindowTitle(tr("Delete"));
    box->setIcon(QvexMessageBox::Warning);
    box->setText(
        FileQuestions::deleteText(int(paths.size()) - folders, folders, placeText(m_place)));
    box->setInformativeText(tr("What is deleted can't be brought back."));
    box->setDetailedText(names.join(u'\n'));
    const QPushButton *yes = box->addButton(tr("Delete"), QDialogButtonBox::DestructiveRole);
    box->addButton(QDialogButtonBox::Cancel);
    box->setDefaultButton(QDialogButtonBox::Cancel);
    connect(box, &QDialog::finished, this, [this, box, yes, paths, model = m_model] {
        box->deleteLater();
        if (box->clickedButton() == yes && model) {
            start(model->deleteFileDirectory(paths), tr("Deleting\u2026"), tr("Deleted."));
        }
    });
    box->open();
}

void FileOperations::pickUp(const QStringList &paths, bool moves)
{
    m_source = m_model;
    m_pickedUp = paths;
    m_moves = moves;
    Q_EMIT pickedUp();
    const QString names = paths.size() == 1
        ? u'"' + FilePaths::shownNameOf(paths.constFirst()) + u'"'
        : tr("%1 entries").arg(paths.size());
    Q_EMIT done((moves ? tr("Open a folder and tap Paste to move %1.")
                       : tr("Open a folder and tap Paste to copy %1."))
                    .arg(names));
}

bool FileOperations::canPaste() const
{
    return !m_pickedUp.isEmpty() && m_model && m_source == m_model;
}

void FileOperations::paste(const QString &folder)
{
    if (!canPaste()) {
        return;
    }
    if (m_moves) {
        const long result = m_model->moveFileDirectory(m_pickedUp, folder);
        start(result, tr("Moving\u2026"), tr("Moved."));
        if (result == QvexFileModel::Done) {
            m_pickedUp.clear(); // they are no longer there
            Q_EMIT pickedUp();
        }
    } else {
        copy(m_pickedUp, folder);
    }
}

void FileOperations::copy(const QStringList &paths, const QString &folder)
{
    start(m_model->copyFileDirectory(paths, folder), tr("Copying\u2026"), tr("Copied."));
}

void FileOperations::start(long result, const QString &text, const QString &doneText)
{
    if (result != QvexFileModel::Done) {
        Q_EMIT failed(m_model ? m_model->resultText(result) : QString());
        return;
    }
    m_doneText = doneText;
    Q_EMIT started(text);
}

void FileOperations::end(long result, const QString &where)
{
    if (result == QvexFileModel::Done) {
        Q_EMIT done(m_doneText);
    } else {
        const QString text = m_model->resultText(result);
        Q_EMIT failed(where.isEmpty() ? text : FilePaths::shownNameOf(where) + u": "_s + text);
    }
}

void FileOperations::cancel()
{
    if (m_model) {
        m_model->cancelThread();
    }
}
