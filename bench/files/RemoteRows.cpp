#include "RemoteRows.h"

#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include <malloc.h>

#include <memory>
#include <stdexcept>

#include "Folders.h"
#include "PlainModel.h"
#include "Waiting.h"
#include "corba/FcpAppCORBA.h"
#include "files/QvexRemoteFileModel.h"
#include "harness/Stopwatch.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QDir::Filters Entries = QDir::AllEntries | QDir::NoDotAndDotDot;
constexpr double Milli = 1e-3;
constexpr int Frames = 300;

QString remotePath(const QString &folder)
{
    return u"/Internal/"_s + folder;
}

std::unique_ptr<QvexRemoteFileModel> makeModel(FcpAppCORBA &controller)
{
    auto model = std::make_unique<QvexRemoteFileModel>(&controller, nullptr);
    model->setFilter(Entries);
    return model;
}

/// Throws when the first and the last of @p count rows can't be read.
void readRows(const QAbstractItemModel &model, const QModelIndex &folder, int count)
{
    const bool isThere = model.rowCount(folder) == count
        && !model.index(0, 0, folder).data().toString().isEmpty()
        && !model.index(count - 1, 1, folder).data().toString().isEmpty();
    if (!isThere) {
        throw std::runtime_error("the folder was not listed");
    }
}

double expandPlainModel(const Folders &folders)
{
    PlainModel model;
    return secondsOf([&] {
        const QModelIndex folder = model.setRootPath(folders.path(Folders::many()));
        await([&] { return model.rowCount(folder) == folders.manyCount(); });
        readRows(model, folder, folders.manyCount());
    });
}

double expandRemoteModel(const Folders &folders, FcpAppCORBA &controller)
{
    const auto model = makeModel(controller);
    return secondsOf([&] {
        const QModelIndex folder = model->setRootPath(remotePath(Folders::many()));
        readRows(*model, folder, folders.manyCount());
    });
}

void addExpansion(Suite &suite, const Folders &folders, FcpAppCORBA &controller)
{
    Comparison expansion;
    expansion.name = u"expand a remote folder of %1"_s.arg(folders.manyCount());
    expansion.work = {1, u"ms"_s, Milli};
    expansion.subject = {
        u"QvexRemoteFileModel"_s, [&] { return expandRemoteModel(folders, controller); }, {}, {}};
    expansion.rivals = {{u"QFileSystemModel, local, no icons"_s,
                         [&] { return expandPlainModel(folders); },
                         Demand::timeAtMost(0.5),
                         {}}};
    suite.add(expansion);
}

/// A view on the folder as a dialog has it: sorted by a proxy, listed in the background.
struct View
{
    View(const Folders &folders, FcpAppCORBA &controller)
        : model(makeModel(controller))
        , count(folders.manyCount())
    {
        model->setAsynchronous(true);
        proxy.setSourceModel(model.get());
        view.setUniformRowHeights(true);
        view.setModel(&proxy);
        view.resize(1280, 800);
        view.show();
        folder = model->setRootPath(remotePath(Folders::many()));
        view.setRootIndex(proxy.mapFromSource(folder));
        await([this] { return model->rowCount(folder) == count && model->isListed(folder); });
    }

    std::unique_ptr<QvexRemoteFileModel> model;
    const int count;
    QSortFilterProxyModel proxy;
    QTreeView view;
    QPersistentModelIndex folder;
};

double standStillOfExpansion(const Folders &folders, FcpAppCORBA &controller)
{
    const StandStill standStill;
    const View view(folders, controller);
    return standStill.longestMs();
}

double frameOfScrolling(const Folders &folders, FcpAppCORBA &controller)
{
    View shown(folders, controller);
    shown.proxy.sort(0);
    QScrollBar *bar = shown.view.verticalScrollBar();
    const int step = std::max(1, bar->maximum() / Frames);
    return secondsOf([&] {
               for (int i = 0; i < Frames; ++i) {
                   bar->setValue(i * step);
                   shown.view.viewport()->repaint();
               }
           })
        / Frames / Milli;
}

qsizetype textBytes(const QAbstractItemModel &model, const QModelIndex &folder)
{
    qsizetype characters = 0;
    for (int row = 0; row < model.rowCount(folder); ++row) {
        for (const int column : {QvexFileModel::NameColumn, QvexFileModel::DateColumn}) {
            characters += model.index(row, column, folder).data().toString().size();
        }
    }
    return characters * qsizetype(sizeof(QChar));
}

double bytesPerEntry(const Folders &folders, FcpAppCORBA &controller)
{
    const auto model = makeModel(controller);
    ::malloc_trim(0);
    const size_t before = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    const QModelIndex folder = model->setRootPath(remotePath(Folders::huge()));
    const size_t after = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    readRows(*model, folder, folders.hugeCount());
    return double(qsizetype(after - before) - textBytes(*model, folder)) / folders.hugeCount();
}

double listing(const Folders &folders, FcpAppCORBA &controller)
{
    return secondsOf([&] {
        QVector<FileSystemItem> items;
        if (!controller.getFileSystemItems(remotePath(Folders::many()), {}, Entries, items)
            || items.size() != folders.manyCount()) {
            throw std::runtime_error("the folder was not listed");
        }
    });
}

double refreshWithOneChange(Folders &folders, FcpAppCORBA &controller)
{
    const auto model = makeModel(controller);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(model.get());
    const QModelIndex folder = model->setRootPath(remotePath(Folders::many()));
    readRows(proxy, proxy.mapFromSource(folder), folders.manyCount());
    folders.changeOne();
    return secondsOf([&] { model->refreshDirectory(folder); });
}

void addRefresh(Suite &suite, Folders &folders, FcpAppCORBA &controller)
{
    Comparison refresh;
    refresh.name = u"refresh %1 with one changed"_s.arg(folders.manyCount());
    refresh.work = {1, u"ms"_s, Milli};
    refresh.subject = {
        u"refreshDirectory()"_s, [&] { return refreshWithOneChange(folders, controller); }, {}, {}};
    refresh.rivals = {{u"getFileSystemItems() alone"_s,
                       [&] { return listing(folders, controller); },
                       Demand::timeAtMost(2),
                       {}}};
    suite.add(refresh);
}

} // namespace

void addRemoteRows(Suite &suite, Folders &folders, FcpAppCORBA &controller)
{
    addExpansion(suite, folders, controller);
    suite.add({u"stand-still meanwhile, in the background"_s, u"ms"_s, 50,
               [&] { return standStillOfExpansion(folders, controller); }, 5});
    suite.add({u"memory of a tree of %1, each, beside the texts"_s.arg(folders.hugeCount()),
               u"bytes"_s, 200, [&] { return bytesPerEntry(folders, controller); }, 1});
    addRefresh(suite, folders, controller);
    suite.add({u"a frame of scrolling through %1"_s.arg(folders.manyCount()), u"ms"_s, 1000 / 60.0,
               [&] { return frameOfScrolling(folders, controller); }, 3});
}
