#include "FileTreesPage.h"

#include "../Instrument.h"

#include <files/QvexLocalFileModel.h>
#include <files/QvexRemoteFileModel.h>

#include <QHBoxLayout>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

FileTreesPage::FileTreesPage()
    : Page(u"file-trees"_s, tr("File models"),
           tr("QvexRemoteFileModel at the left and QvexLocalFileModel at the right."))
{
}

QWidget *FileTreesPage::recipe(QWidget *parent)
{
    auto *trees = new QWidget(parent);
    trees->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *row = new QHBoxLayout(trees);
    QVector<QvexFileModel *> models;
    if (FcpAppCORBA *controller = Instrument::controller()) {
        models += new QvexRemoteFileModel(controller, trees);
        models.constLast()->setRootPath(u"/Internal"_s);
    }
    models += new QvexLocalFileModel(trees);
    models.constLast()->setRootPath(Instrument::localFolder());
    for (QvexFileModel *model : std::as_const(models)) {
        auto *tree = new QTreeView(trees);
        tree->setModel(model);
        tree->setRootIndex(model->fileIndex(model->rootPath()));
        tree->setColumnWidth(QvexFileModel::NameColumn, 180);
        row->addWidget(tree);
    }
    return trees;
}

QVector<Page::Scene> FileTreesPage::scenes()
{
    return {{{}, [] {}, 800}};
}
