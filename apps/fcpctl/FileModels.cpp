#include "FileModels.h"

#include "Failure.h"
#include "RemoteTree.h"
#include "Session.h"
#include "Text.h"

#include <files/QvexLocalFileModel.h>
#include <files/QvexRemoteFileModel.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A disk that takes longer than this to list a folder does not answer.
constexpr std::chrono::seconds LocalPatience(60);

constexpr QDir::Filters Everything =
    QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/// Serves events until @p condition holds.
bool await(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(LocalPatience);
    QEventLoop loop;
    QTimer tick;
    tick.start(std::chrono::milliseconds(5));
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace

FileSide::FileSide(std::unique_ptr<QvexFileModel> model, const Session *session)
    : m_model(std::move(model))
    , m_session(session)
{
    m_model->setFilter(Everything);
}

FileSide::~FileSide() = default;

std::unique_ptr<FileSide> FileSide::instrument(const Session &session)
{
    auto model = std::make_unique<QvexRemoteFileModel>(session.controller(), nullptr);
    return std::unique_ptr<FileSide>(new FileSide(std::move(model), &session));
}

std::unique_ptr<FileSide> FileSide::computer()
{
    auto model = std::make_unique<QvexLocalFileModel>(nullptr, false);
    model->showSpecialFolders(true);
    return std::unique_ptr<FileSide>(new FileSide(std::move(model), nullptr));
}

QModelIndex FileSide::open(const QString &path)
{
    const QPersistentModelIndex folder = m_model->setRootPath(path);
    if (m_session != nullptr) {
        m_session->requireLink();
    }
    if (!folder.isValid() || !m_model->isDir(folder)) {
        throw fileFailure(path, u"no such folder"_s);
    }
    list(folder);
    return folder;
}

void FileSide::list(const QModelIndex &folder)
{
    if (m_model->isListed(folder)) {
        return;
    }
    const QPersistentModelIndex kept = folder;
    if (m_model->canFetchMore(folder)) {
        m_model->fetchMore(folder);
    }
    if (m_session != nullptr) {
        m_session->requireLink();
    }
    const auto isListed = [&] { return m_model->isListed(kept); };
    if (isInstrument() ? !isListed() : !await(isListed)) {
        throw fileFailure(m_model->filePath(kept), u"it can not be listed"_s);
    }
}

bool FileSide::isFolder(const QString &path) const
{
    if (!isInstrument()) {
        return QFileInfo(path).isDir();
    }
    RemoteTree tree(*m_session);
    return tree.isDirectory(path);
}

void FileSide::makeFolder(const QString &path)
{
    if (!isInstrument()) {
        if (!QDir().mkpath(path)) {
            throw fileFailure(path, u"the folder can not be made"_s);
        }
        return;
    }
    if (isFolder(path)) {
        return;
    }
    const QString parent = remoteParent(path);
    makeFolder(parent);
    const QPersistentModelIndex folder = open(parent);
    const QString made = m_model->newDirectory(folder);
    m_session->requireLink();
    const QModelIndex index = m_model->fileIndex(joinPath(parent, made));
    if (made.isEmpty() || !m_model->setData(index, remoteName(path))) {
        throw fileFailure(path, u"the instrument did not make the folder"_s);
    }
}
