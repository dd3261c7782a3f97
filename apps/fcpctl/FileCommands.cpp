// The instrument's files, without their contents: ls, mkdir, mv, cp, rm.

#include "CommandLine.h"
#include "Interrupt.h"
#include "Output.h"
#include "RemoteTree.h"
#include "Table.h"
#include "Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Done = static_cast<int>(Exit::Done);

Failure refused(const QString &path, long answer)
{
    return fileFailure(path, u"the instrument refused (it answered %1)"_s.arg(answer));
}

FileSystemItem findOrFail(RemoteTree &tree, const QString &path)
{
    const std::optional<FileSystemItem> item = tree.find(path);
    if (!item) {
        throw fileFailure(path, u"no such file or directory on the instrument"_s);
    }
    return *item;
}

QVector<FileSystemItem> itemsToShow(RemoteTree &tree, const QString &path,
                                    const QVector<QString> &patterns)
{
    QVector<FileSystemItem> items;
    if (const auto listed = tree.list(withoutTrailingSlash(path), patterns)) {
        items = *listed;
    } else {
        const FileSystemItem item = findOrFail(tree, path);
        if (item.isdir) {
            throw fileFailure(path, u"the instrument can not list it"_s);
        }
        if (path.endsWith(u'/')) {
            throw fileFailure(path, u"it is a file"_s);
        }
        items = {item};
    }
    std::sort(items.begin(), items.end(),
              [](const FileSystemItem &a, const FileSystemItem &b) { return a.name < b.name; });
    return items;
}

QJsonArray toJson(const QVector<FileSystemItem> &items)
{
    QJsonArray array;
    for (const FileSystemItem &item : items) {
        array += QJsonObject {
            {u"name"_s, item.name},
            {u"type"_s, item.isdir ? u"directory"_s : u"file"_s},
            {u"size"_s, item.isdir ? QJsonValue() : QJsonValue(item.size)},
            {u"entries"_s, item.isdir ? QJsonValue(item.dircount) : QJsonValue()},
            {u"date"_s, item.date},
        };
    }
    return array;
}

QString shownName(const FileSystemItem &item)
{
    return Output::name(item.name) + (item.isdir ? u"/"_s : QString());
}

QString entryCount(const FileSystemItem &directory)
{
    return u"%1 %2"_s.arg(directory.dircount)
        .arg(directory.dircount == 1 ? u"entry"_s : u"entries"_s);
}

QString toTable(const QVector<FileSystemItem> &items)
{
    Table table({{u"TYPE"_s}, {u"SIZE"_s, Table::Align::Right}, {u"DATE"_s}, {u"NAME"_s}});
    for (const FileSystemItem &item : items) {
        table.add({item.isdir ? u"dir"_s : u"file"_s,
                   item.isdir ? entryCount(item) : QString::number(item.size),
                   Output::name(item.date), shownName(item)});
    }
    return table.text();
}

int ls(const Invocation &invocation)
{
    const QStringList operands = invocation.operands();
    const Session session(invocation.address());
    RemoteTree tree(session);
    const QVector<FileSystemItem> items = itemsToShow(tree, operands.first(), operands.sliced(1));
    if (invocation.json()) {
        Output::json(toJson(items));
    } else if (invocation.isSet(u"l"_s)) {
        Output::write(toTable(items));
    } else {
        QString text;
        for (const FileSystemItem &item : items) {
            text += shownName(item) + u'\n';
        }
        Output::write(text);
    }
    return Done;
}

/**
 * The controller chooses the name of a new directory: it is made, then given the name that was
 * asked for. Throws after taking the fresh one away when that is refused.
 */
void makeDirectory(const Session &session, const QString &path)
{
    const QString parent = remoteParent(path);
    const QString made = session.ask([&](FcpAppCORBA &fcp) { return fcp.newDirectory(parent); });
    if (made.isEmpty()) {
        throw fileFailure(path, u"the instrument made no directory in "_s + printable(parent));
    }
    const QString chosen = remoteName(made);
    if (chosen == remoteName(path)) {
        return;
    }
    const long answer = session.ask([&](FcpAppCORBA &fcp) {
        return fcp.renameFileDirectory(parent, chosen, remoteName(path));
    });
    if (answer == 0) {
        return;
    }
    const QString left = joinPath(parent, chosen);
    if (session.ask([&](FcpAppCORBA &fcp) { return fcp.deleteFileDirectory(left); }) != 0) {
        throw fileFailure(
            path,
            u"the instrument refused the name (it answered %1); %2 is left over"_s.arg(answer).arg(
                printable(left)));
    }
    throw refused(path, answer);
}

int mkdir(const Invocation &invocation)
{
    const Interrupt interrupt; // between its calls the directory has a name nobody asked for
    const Session session(invocation.address());
    RemoteTree tree(session);
    QJsonArray made;
    for (const QString &operand : invocation.operands()) {
        const QString path = withoutTrailingSlash(operand);
        if (tree.find(path)) {
            throw fileFailure(path, u"it exists already"_s);
        }
        makeDirectory(session, path);
        tree.forget();
        made += path;
    }
    if (invocation.json()) {
        Output::json(QJsonObject {{u"made"_s, made}});
    }
    return Done;
}

using CarryCall = long (*)(FcpAppCORBA &fcp, const QString &source, const QString &target);

/// The destination of the two wire calls: the directory where that says it all, else the full path.
QString wireDestination(const QString &source, const QString &target)
{
    return remoteName(source) == remoteName(target) ? remoteParent(target) : target;
}

long moveItem(FcpAppCORBA &fcp, const QString &source, const QString &target)
{
    const QString parent = remoteParent(source);
    if (parent == remoteParent(target)) {
        return fcp.renameFileDirectory(parent, remoteName(source), remoteName(target));
    }
    return fcp.moveFileDirectory(source, wireDestination(source, target));
}

long copyItem(FcpAppCORBA &fcp, const QString &source, const QString &target)
{
    return fcp.copyFileDirectory(source, wireDestination(source, target));
}

int carry(const Invocation &invocation, CarryCall call)
{
    const QStringList operands = invocation.operands();
    const QStringList sources = operands.first(operands.size() - 1);
    const Session session(invocation.address());
    RemoteTree tree(session);
    QJsonArray carried;
    for (const QString &operand : sources) {
        const QString source = withoutTrailingSlash(operand);
        findOrFail(tree, source);
        const QString target = tree.target(operands.last(), remoteName(source), sources.size() > 1);
        if (tree.find(target)) {
            throw fileFailure(target, u"it exists already, and is not overwritten"_s);
        }
        const long answer =
            session.ask([&](FcpAppCORBA &fcp) { return call(fcp, source, target); });
        if (answer != 0) {
            throw refused(source, answer);
        }
        tree.forget();
        carried += QJsonObject {{u"source"_s, source}, {u"destination"_s, target}};
    }
    if (invocation.json()) {
        Output::json(carried);
    }
    return Done;
}

int mv(const Invocation &invocation)
{
    return carry(invocation, moveItem);
}

int cp(const Invocation &invocation)
{
    return carry(invocation, copyItem);
}

int rm(const Invocation &invocation)
{
    const Session session(invocation.address());
    RemoteTree tree(session);
    QJsonArray removed;
    for (const QString &operand : invocation.operands()) {
        const QString path = withoutTrailingSlash(operand);
        if (findOrFail(tree, path).isdir && !invocation.isSet(u"r"_s)) {
            throw fileFailure(path, u"it is a directory; -r removes it with all that is in it"_s);
        }
        const long answer =
            session.ask([&path](FcpAppCORBA &fcp) { return fcp.deleteFileDirectory(path); });
        if (answer != 0) {
            throw refused(path, answer);
        }
        removed += path;
    }
    if (invocation.json()) {
        Output::json(QJsonObject {{u"removed"_s, removed}});
    }
    return Done;
}

} // namespace

QList<Command> fileCommands()
{
    return {
        {.name = u"ls"_s,
         .operands = u"PATH [PATTERN...]"_s,
         .summary = u"List a directory of the instrument, or one file."_s,
         .options = {{{u"l"_s, u"long"_s}, u"Show type, size in bytes, date and name."_s}},
         .fewest = 1,
         .most = Command::Any,
         .run = ls},
        {.name = u"mkdir"_s,
         .operands = u"PATH..."_s,
         .summary = u"Make directories on the instrument."_s,
         .fewest = 1,
         .most = Command::Any,
         .run = mkdir},
        {.name = u"mv"_s,
         .operands = u"SOURCE... DESTINATION"_s,
         .summary = u"Move or rename on the instrument; never overwrites."_s,
         .fewest = 2,
         .most = Command::Any,
         .run = mv},
        {.name = u"cp"_s,
         .operands = u"SOURCE... DESTINATION"_s,
         .summary = u"Copy on the instrument; never overwrites."_s,
         .fewest = 2,
         .most = Command::Any,
         .run = cp},
        {.name = u"rm"_s,
         .operands = u"PATH..."_s,
         .summary = u"Delete on the instrument."_s,
         .options = {{{u"r"_s, u"recursive"_s}, u"Delete directories with all that is in them."_s}},
         .fewest = 1,
         .most = Command::Any,
         .run = rm},
    };
}
