#pragma once

#include <frame/ClientGUIBase.h>

#include "Language.h"

class ControlButtons;
class ControllerLink;
class LinkPanel;
class LogPanel;
class Meter;
class ResultFiles;
class ResultPage;
class RunFile;
class Settings;
class SetupPage;
class StatusChip;
class TestPage;
class Toast;

/**
 * The level meter's frame: its three windows, and the connections between them, the run and the
 * files. What the frame asks of the framework is Framework's.
 */
class MeterWindow : public ClientGUIBase
{
    Q_OBJECT

public:
    /// None of the parts is owned; all must outlive the window.
    MeterWindow(QVector<QString> &args, Settings &settings, Meter &meter, ControllerLink &link,
                const QString &resultsFolder);
    ~MeterWindow() override;

    ResultFiles &files() const { return *m_files; }
    /// Whether closing would lose a run: one that is under way or was not saved.
    bool hasUnsavedRun() const;

    void updateText() override;
    /// Shuts the link's panel when the page beside it is touched.
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Begins a run with the settings of the moment, and shows it.
    void startRun();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeWindows();
    void makePanels();
    void makeControlButtons();
    void connectRun();
    void connectFiles();
    void connectLink();
    void applyColours();
    void applyProperty(long id);
    void showLink();
    void reportRun();
    void openResult(const QString &path, const RunFile &file);

    Settings &m_settings;
    Meter &m_meter;
    ControllerLink &m_link;
    const std::unique_ptr<ResultFiles> m_files;
    Language m_language;
    SetupPage *m_setup;
    TestPage *m_test;
    ResultPage *m_result;
    LinkPanel *m_linkPanel;
    LogPanel *m_logPanel;
    ControlButtons *m_controlButtons;
    StatusChip *m_linkChip;
    Toast *m_toast;
    bool m_isSaved = true;
};
