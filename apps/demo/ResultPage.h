#pragma once

#include <QWidget>

#include "RunFile.h"

class EventList;
class PlotPanel;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QTableWidget;
class StatusChip;

/// The result window: the saved runs of a folder, and one of them with all that is in its file.
class ResultPage : public QWidget
{
    Q_OBJECT

public:
    /// @p folder is where results are saved first.
    explicit ResultPage(const QString &folder, QWidget *parent = nullptr);

    /// Lists the folder anew.
    void refresh();
    /// Shows a run that was read from @p path, which is chosen in the list if it is there.
    void showRun(const QString &path, const RunFile &file);
    /// The path of what is shown; empty when nothing is.
    QString path() const { return m_path; }
    void setCanUpload(bool canUpload);
    /// An upload is under way. @p total is 0 as long as nobody knows it.
    void showUpload(qint64 bytes, qint64 total);
    void endUpload();

Q_SIGNALS:
    /// A run was chosen from the list.
    void openWanted(const QString &path);
    void browseWanted();
    void uploadWanted(const QString &path);
    void transferWanted();
    void deleteWanted(const QString &path);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeList();
    QWidget *makeDetails();
    QWidget *makeButtons();
    void chooseCurrent();
    void showDetails();
    void addRow(const QString &name, const QString &value);
    void showButtons();
    void retranslate();

    const QString m_folder;
    QString m_path;
    RunFile m_file;
    bool m_canUpload = false;
    bool m_isUploading = false;
    QLabel *m_listHeading;
    QWidget *m_side;
    QListWidget *m_list;
    QLabel *m_empty;
    QLabel *m_name;
    StatusChip *m_verdict;
    QTableWidget *m_table;
    PlotPanel *m_plot;
    EventList *m_events;
    QPushButton *m_browse;
    QPushButton *m_upload;
    QProgressBar *m_uploadBar;
    QPushButton *m_transfer;
    QPushButton *m_delete;
};
