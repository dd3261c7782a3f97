#include "FileScenes.h"

#include <dialogs/QvexDialog.h>
#include <files/FwLoadSaveDialog.h>
#include <files/QvexFileModel.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QItemSelectionModel>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patienceMs = 1000;

QModelIndex find(const QTreeView *view, const QString &name)
{
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < model->rowCount(view->rootIndex()); ++row) {
        const QModelIndex index = model->index(row, 0, view->rootIndex());
        if (index.data(QvexFileModel::FileNameRole).toString() == name) {
            return index;
        }
    }
    return {};
}

QModelIndex await(const QTreeView *view, const QString &name)
{
    const QDeadlineTimer deadline(patienceMs);
    QModelIndex found = find(view, name);
    while (!found.isValid() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        found = find(view, name);
    }
    return found;
}

} // namespace

FwLoadSaveDialog *FileScenes::dialog()
{
    return qobject_cast<FwLoadSaveDialog *>(QvexDialog::activeDialog());
}

void FileScenes::select(int list, const QStringList &names)
{
    const auto *view = dialog()->findChildren<QTreeView *>(u"FileList"_s).value(list);
    for (const QString &name : names) {
        view->selectionModel()->select(await(view, name),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

void FileScenes::tap(int number, const QString &button)
{
    if (auto *found = dialog()->findChildren<QAbstractButton *>(button).value(number)) {
        found->click();
    }
}

void FileScenes::tick(const QString &box)
{
    const QDeadlineTimer deadline(patienceMs);
    QAbstractButton *found = nullptr;
    while (!found && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        const QvexDialog *question = QvexDialog::activeDialog();
        found = question ? question->findChild<QAbstractButton *>(box) : nullptr;
    }
    if (found) {
        found->setChecked(true);
    }
}
