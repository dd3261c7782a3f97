#include "LocalRows.h"

#include <QDirIterator>

#include <stdexcept>

#include "Folders.h"
#include "PlainModel.h"
#include "Waiting.h"
#include "files/QvexLocalFileModel.h"
#include "harness/Stopwatch.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double Milli = 1e-3;
constexpr int HeadLines = 10;
constexpr qint64 LineLength = 300;

/// Whether all rows are there, backwards by name, which no model has them in by itself.
bool isSorted(const QAbstractItemModel &model, const QModelIndex &folder, int count)
{
    const auto nameAt = [&](int row) { return model.index(row, 0, folder).data().toString(); };
    return model.rowCount(folder) == count && nameAt(0) == Folders::name(count - 1)
        && nameAt(count / 2) == Folders::name(count - 1 - count / 2)
        && nameAt(count - 1) == Folders::name(0);
}

template<typename Model>
void sortFolder(Model &model, const Folders &folders)
{
    const QPersistentModelIndex folder = model.setRootPath(folders.path(Folders::many()));
    model.sort(0, Qt::DescendingOrder);
    await([&] { return isSorted(model, folder, folders.manyCount()); });
}

double sortPlainModel(const Folders &folders)
{
    PlainModel model;
    return secondsOf([&] { sortFolder(model, folders); });
}

double sortLocalModel(const Folders &folders)
{
    QvexLocalFileModel model(nullptr, true);
    return secondsOf([&] { sortFolder(model, folders); });
}

using Sorting = double (*)(const Folders &);

double standStillOf(Sorting sorting, const Folders &folders)
{
    const StandStill standStill;
    sorting(folders);
    return standStill.longestMs();
}

/// As a program would that had nothing else to do.
double readHeads(const Folders &folders)
{
    return secondsOf([&] {
        int matching = 0;
        QDirIterator entry(folders.path(Folders::heads()), QDir::Files);
        while (entry.hasNext()) {
            QFile file(entry.next());
            QByteArray head;
            if (file.open(QIODevice::ReadOnly)) {
                for (int i = 0; i < HeadLines; ++i) {
                    head += file.readLine(LineLength);
                }
            }
            matching += head.contains("<AppType>Meter<") ? 1 : 0;
        }
        if (matching != folders.matchingCount()) {
            throw std::runtime_error("heads were not read");
        }
    });
}

double filterByHead(const Folders &folders)
{
    QvexLocalFileModel model(nullptr, true);
    model.setHeadFilter(u"Meter"_s, {});
    model.setVexFilters({}, {u"xml"_s});
    return secondsOf([&] {
        bool isLoaded = false;
        QObject::connect(&model, &QvexFileModel::directoryLoaded, &model,
                         [&](const QString &) { isLoaded = true; });
        const QPersistentModelIndex folder = model.setRootPath(folders.path(Folders::heads()));
        await([&] { return isLoaded && model.rowCount(folder) == folders.matchingCount(); });
    });
}

void addSorting(Suite &suite, const Folders &folders)
{
    Comparison sorting;
    sorting.name = u"sorted rows of a local folder of %1"_s.arg(folders.manyCount());
    sorting.work = {1, u"ms"_s, Milli};
    sorting.subject = {u"QvexLocalFileModel"_s, [&] { return sortLocalModel(folders); }, {}, {}};
    sorting.rivals = {{u"QFileSystemModel, no icons"_s,
                       [&] { return sortPlainModel(folders); },
                       Demand::timeAtMost(1.2),
                       {}}};
    suite.add(sorting);
    suite.add({u"stand-still while a local folder is sorted"_s, u"ms"_s, 250,
               [&] { return standStillOf(sortLocalModel, folders); }, 5});

    Comparison standStill;
    standStill.name = u"stand-still while a local folder is sorted, beside"_s;
    standStill.work = {1, u"ms"_s, Milli};
    standStill.subject = {u"QvexLocalFileModel"_s,
                          [&] { return standStillOf(sortLocalModel, folders) * Milli; },
                          {},
                          {}};
    standStill.rivals = {{u"QFileSystemModel, no icons"_s,
                          [&] { return standStillOf(sortPlainModel, folders) * Milli; },
                          {},
                          {}}};
    suite.add(standStill);
}

void addHeads(Suite &suite, const Folders &folders)
{
    Comparison heads;
    heads.name = u"filter %1 files by their heads, not read before"_s.arg(folders.headCount());
    heads.work = {1, u"ms"_s, Milli};
    heads.subject = {u"QvexLocalFileModel"_s, [&] { return filterByHead(folders); }, {}, {}};
    heads.rivals = {{u"reading ten lines of each in a loop"_s,
                     [&] { return readHeads(folders); },
                     Demand::timeAtMost(1.5),
                     {}}};
    suite.add(heads);
}

} // namespace

void addLocalRows(Suite &suite, const Folders &folders)
{
    addSorting(suite, folders);
    addHeads(suite, folders);
}
