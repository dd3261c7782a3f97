#pragma once

#include <QDirIterator>
#include <QMap>

#include "LocalFiles.h"

/** Contents of files by their path below a folder; folders have a "/" behind their path. */
using Tree = QMap<QString, QByteArray>;

inline Tree treeOf(const QString &folder)
{
    Tree tree;
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QString name = path.sliced(folder.size() + 1);
        if (entries.fileInfo().isDir()) {
            tree.insert(name + QLatin1Char('/'), {});
        } else {
            tree.insert(name, contentsOf(path));
        }
    }
    return tree;
}

inline void writeTree(const QString &folder, const Tree &tree)
{
    for (auto file = tree.cbegin(); file != tree.cend(); ++file) {
        if (file.key().endsWith(QLatin1Char('/'))) {
            QDir().mkpath(folder + QLatin1Char('/') + file.key());
        } else {
            writeFile(folder + QLatin1Char('/') + file.key(), file.value());
        }
    }
}
