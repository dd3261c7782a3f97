#include "ResultFiles.h"

#include <QDir>
#include <QFile>

#include <dialogs/QvexMessageBox.h>
#include <files/FileTransfer.h>
#include <files/FwLoadSaveDialog.h>
#include <frame/ClientGUIBase.h>

using namespace Qt::StringLiterals;

namespace {

const auto instrumentFolder = u"/Internal"_s;

/// Names have the time of the run in them: one that is there already is another run's.
class KeepBoth : public TransferQuestions
{
public:
    void askConflict(const FileConflict &, Answer answer) override
    {
        answer(ConflictChoice::KeepBoth, true);
    }
};

QStringList filters()
{
    return {u"*."_s + RunFile::suffix()};
}

} // namespace

QString ResultFiles::appType()
{
    return u"LevelMeter"_s;
}

QString ResultFiles::appTech()
{
    return u"Optical"_s;
}

ResultFiles::ResultFiles(const QString &folder, ClientGUIBase &frame, FcpAppCORBA *controller)
    : m_folder(folder)
    , m_frame(frame)
    , m_controller(controller)
{
    QDir().mkpath(m_folder);
    m_reader.setMaxThreadCount(1);
}

ResultFiles::~ResultFiles() = default;

QString ResultFiles::nameFor(const Run &run) const
{
    return run.started.toString(u"'level-'yyyyMMdd-HHmmss"_s) + u'.' + RunFile::suffix();
}

void ResultFiles::save(const Run &run)
{
    FwLoadSaveDialog dialog(FwLoadSaveDialog::Mode::Save, nullptr, &m_frame);
    dialog.setWindowTitle(tr("Save the result"));
    dialog.setNameFilters(filters());
    dialog.setFolder(FwLoadSaveDialog::Place::Computer, m_folder);
    dialog.setDefaultSuffix(RunFile::suffix());
    dialog.setFileName(nameFor(run));
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        write(dialog.selectedFiles().constFirst(), run);
    }
}

void ResultFiles::saveAtOnce(const Run &run)
{
    write(QDir(m_folder).filePath(nameFor(run)), run);
}

void ResultFiles::write(const QString &path, const Run &run)
{
    const RunFile file {{m_serverId, appType(), appTech(), m_frame.getApplicationPort()}, run};
    const QString error = file.write(path);
    if (error.isEmpty()) {
        toast(tr("Saved as %1").arg(QFileInfo(path).fileName()));
        Q_EMIT saved(path);
    } else {
        complain(error);
    }
}

void ResultFiles::open(const QString &path)
{
    const int number = ++m_opened;
    m_reader.start([this, path, number] {
        if (number != m_opened) {
            return;
        }
        RunFile file;
        const QString error = file.read(path);
        QMetaObject::invokeMethod(this, [=, this] {
            if (!error.isEmpty()) {
                complain(error);
            } else if (number == m_opened) {
                Q_EMIT opened(path, file);
            }
        });
    });
}

void ResultFiles::browse()
{
    FwLoadSaveDialog dialog(FwLoadSaveDialog::Mode::Load, nullptr, &m_frame);
    dialog.setWindowTitle(tr("Result File Browser"));
    dialog.setVexFilters(filters(), {RunFile::suffix()});
    dialog.setHeadFilter(appType(), appTech());
    dialog.setFolder(FwLoadSaveDialog::Place::Computer, m_folder);
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        open(dialog.selectedFiles().constFirst());
    }
}

void ResultFiles::upload(const QString &path)
{
    static KeepBoth keepBoth;
    if (path.isEmpty() || !m_controller || m_upload) {
        return;
    }
    m_upload = std::make_unique<FileTransfer>(m_controller, FileTransfer::Kind::Upload,
                                              QStringList {path}, instrumentFolder);
    m_upload->setQuestions(&keepBoth);
    connect(m_upload.get(), &FileTransfer::finished, this,
            [this, path](const TransferSummary &summary) { uploadEnded(path, summary); });
    connect(m_upload.get(), &FileTransfer::progressChanged, this,
            [this](const TransferProgress &progress) {
                Q_EMIT uploadProgressed(progress.bytesDone, progress.bytesTotal);
            });
    Q_EMIT uploadProgressed(0, 0);
    m_upload->start();
}

void ResultFiles::uploadEnded(const QString &path, const TransferSummary &summary)
{
    // It is still emitting this.
    m_upload.release()->deleteLater();
    const bool isDone = summary.outcome == TransferSummary::Outcome::Done;
    if (isDone) {
        toast(tr("%1 is on the instrument now").arg(QFileInfo(path).fileName()));
    } else {
        const QString reason =
            summary.failures.isEmpty() ? summary.reason : summary.failures.constFirst().reason;
        complain(
            tr("%1 did not get to the instrument: %2").arg(QFileInfo(path).fileName(), reason));
    }
    Q_EMIT uploaded(path, isDone);
}

void ResultFiles::transfer()
{
    FwLoadSaveDialog dialog(FwLoadSaveDialog::Mode::Transfer, m_controller, &m_frame);
    dialog.setWindowTitle(tr("Files of the instrument"));
    dialog.setFolder(FwLoadSaveDialog::Place::Instrument, instrumentFolder);
    dialog.setFolder(FwLoadSaveDialog::Place::Computer, m_folder);
    dialog.exec();
}

void ResultFiles::remove(const QString &path)
{
    const QString question =
        tr("Delete %1? It can't be brought back.").arg(QFileInfo(path).fileName());
    if (QvexMessageBox::question(&m_frame, tr("Delete a result"), question)
        != QDialogButtonBox::Yes) {
        return;
    }
    if (QFile::remove(path)) {
        Q_EMIT removed(path);
    } else {
        complain(tr("%1 can't be deleted.").arg(path));
    }
}

void ResultFiles::complain(const QString &text)
{
    QvexMessageBox::warning(&m_frame, tr("Results"), text);
}

void ResultFiles::toast(const QString &text)
{
    constexpr int duration = 2500; // milliseconds
    Q_EMIT m_frame.showToast(text, duration, 0, 0);
}
