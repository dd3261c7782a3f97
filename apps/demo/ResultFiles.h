#pragma once

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

#include "RunFile.h"

class ClientGUIBase;
class FcpAppCORBA;
class FileTransfer;
struct TransferSummary;

/// What can be done with the files of runs, with the dialogs that it takes.
class ResultFiles : public QObject
{
    Q_OBJECT

public:
    static QString appType();
    static QString appTech();

    /// @p frame and @p controller are not owned; a null controller leaves this computer's files.
    ResultFiles(const QString &folder, ClientGUIBase &frame, FcpAppCORBA *controller);
    ~ResultFiles() override;

    QString folder() const { return m_folder; }
    /// Of the instrument, for the heads of files.
    void setServerId(const QString &serverId) { m_serverId = serverId; }

public Q_SLOTS:
    /// Asks where to.
    void save(const Run &run);
    /// Without a question, into folder().
    void saveAtOnce(const Run &run);
    /// Reads it on a thread of its own. Of several at once, the last one is opened.
    void open(const QString &path);
    /// Asks which.
    void browse();
    void upload(const QString &path);
    /// Shows the instrument's files and ours side by side.
    void transfer();
    /// Asks first.
    void remove(const QString &path);

Q_SIGNALS:
    void saved(const QString &path);
    void opened(const QString &path, const RunFile &file);
    void removed(const QString &path);
    void uploadProgressed(qint64 bytes, qint64 total);
    void uploaded(const QString &path, bool isDone);

private:
    void write(const QString &path, const Run &run);
    QString nameFor(const Run &run) const;
    void uploadEnded(const QString &path, const TransferSummary &summary);
    void complain(const QString &text);
    void toast(const QString &text);

    const QString m_folder;
    ClientGUIBase &m_frame;
    FcpAppCORBA *const m_controller;
    QString m_serverId;
    std::unique_ptr<FileTransfer> m_upload;
    std::atomic<int> m_opened = 0; ///< counts the files that open() was asked for
    QThreadPool m_reader; ///< the last member: it waits for the thread, which uses the others
};
