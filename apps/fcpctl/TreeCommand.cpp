// The instrument's folders with what is in them: tree.

#include "CommandLine.h"
#include "FileModels.h"
#include "Interrupt.h"
#include "Output.h"
#include "RemoteTree.h"
#include "Text.h"

#include <files/QvexFileModel.h>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

/// Draws a folder line by line, as it is listed, so that a large one is seen growing.
class TreeDrawing
{
public:
    TreeDrawing(const Invocation &invocation, const Session &session, const Interrupt &interrupt)
        : m_interrupt(interrupt)
        , m_side(FileSide::instrument(session))
        , m_depth(depthOf(invocation))
    {
    }

    int draw(const QString &path)
    {
        const QModelIndex root = m_side->open(path);
        Output::line(Output::name(path));
        drawEntries(root, QString(), 1);
        if (m_interrupt.requested()) {
            return m_interrupt.exitCode();
        }
        Output::line(u"\n%1, %2"_s.arg(counted(m_folders, u"folder"_s, u"folders"_s),
                                       counted(m_files, u"file"_s, u"files"_s)));
        return static_cast<int>(m_failures == 0 ? Exit::Done : Exit::Failed);
    }

    int json(const QString &path)
    {
        const QModelIndex root = m_side->open(path);
        Output::json(QJsonObject {{u"path"_s, path}, {u"entries"_s, entries(root, 1)}});
        return m_interrupt.requested()
            ? m_interrupt.exitCode()
            : static_cast<int>(m_failures == 0 ? Exit::Done : Exit::Failed);
    }

private:
    static int depthOf(const Invocation &invocation)
    {
        if (!invocation.isSet(u"depth"_s)) {
            return std::numeric_limits<int>::max();
        }
        bool isNumber = false;
        const int depth = invocation.value(u"depth"_s).toInt(&isNumber);
        if (!isNumber || depth < 1) {
            invocation.usageError(u"--depth takes a number from 1"_s);
        }
        return depth;
    }

    static QString counted(int count, const QString &one, const QString &many)
    {
        return u"%1 %2"_s.arg(count).arg(count == 1 ? one : many);
    }

    QString nameOf(const QModelIndex &index) const
    {
        return index.data(QvexFileModel::FileNameRole).toString();
    }

    QList<QModelIndex> sortedChildren(const QModelIndex &folder) const
    {
        QvexFileModel &model = m_side->model();
        QList<QModelIndex> children(model.rowCount(folder));
        for (int row = 0; row < children.size(); ++row) {
            children[row] = model.index(row, 0, folder);
        }
        std::sort(
            children.begin(), children.end(),
            [this](const QModelIndex &a, const QModelIndex &b) { return nameOf(a) < nameOf(b); });
        return children;
    }

    /// Whether @p folder is to be looked into and could be.
    bool enter(const QModelIndex &folder, int level)
    {
        if (level >= m_depth || m_interrupt.requested()) {
            return false;
        }
        try {
            m_side->list(folder);
            return true;
        } catch (const Failure &failure) {
            if (failure.exit == Exit::NoLink) {
                throw;
            }
            ++m_failures;
            Output::error(u"tree: "_s + failure.message);
            return false;
        }
    }

    void drawEntries(const QModelIndex &folder, const QString &margin, int level)
    {
        const QList<QModelIndex> children = sortedChildren(folder);
        for (const QModelIndex &child : children) {
            if (m_interrupt.requested()) {
                return;
            }
            const bool isLast = child == children.last();
            const bool isFolder = m_side->model().isDir(child);
            Output::line(margin + (isLast ? u"└── "_s : u"├── "_s) + Output::name(nameOf(child))
                         + (isFolder ? u"/"_s : QString()));
            ++(isFolder ? m_folders : m_files);
            if (isFolder && enter(child, level)) {
                drawEntries(child, margin + (isLast ? u"    "_s : u"│   "_s), level + 1);
            }
        }
    }

    QJsonArray entries(const QModelIndex &folder, int level)
    {
        QJsonArray array;
        for (const QModelIndex &child : sortedChildren(folder)) {
            QJsonObject object {{u"name"_s, nameOf(child)}};
            if (!m_side->model().isDir(child)) {
                object[u"size"_s] = child.data(QvexFileModel::FileSizeRole).toLongLong();
            } else if (enter(child, level)) {
                object[u"entries"_s] = entries(child, level + 1);
            } else {
                object[u"entries"_s] = QJsonValue();
            }
            array.append(object);
        }
        return array;
    }

    const Interrupt &m_interrupt;
    const std::unique_ptr<FileSide> m_side;
    const int m_depth;
    int m_folders = 0;
    int m_files = 0;
    int m_failures = 0;
};

int tree(const Invocation &invocation)
{
    const QString path =
        invocation.operands().isEmpty() ? u"/"_s : withoutTrailingSlash(invocation.operands()[0]);
    const Interrupt interrupt;
    const Session session(invocation.address());
    TreeDrawing drawing(invocation, session, interrupt);
    return invocation.json() ? drawing.json(path) : drawing.draw(path);
}

} // namespace

QList<Command> treeCommands()
{
    return {
        {.name = u"tree"_s,
         .operands = u"[DIRECTORY]"_s,
         .summary = u"Show a directory of the instrument with all below it."_s,
         .options = {{{u"d"_s, u"depth"_s}, u"Go down that many levels only."_s, u"LEVELS"_s}},
         .most = 1,
         .run = tree},
    };
}
