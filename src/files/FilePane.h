#pragma once

#include <QFrame>
#include <QHash>

#include "FileActionBar.h"
#include "FilePlace.h"

class BreadcrumbBar;
class FileListView;
class FileOperations;
class FileSortFilter;
class FolderWatch;
class LinkWatch;
class PaneNotice;
class PlaceBar;
class QComboBox;
class QLineEdit;
class QStackedLayout;
class QToolButton;
class QvexFileModel;
class StatusStrip;

/**
 * One folder of one place, with all that is needed to get to another and to keep order in it. Has
 * models of its own, so that two panes don't meet in one.
 */
class FilePane : public QFrame
{
    Q_OBJECT

public:
    /** The places stand at the left, or above if @p placesAbove. @p link is not owned. */
    FilePane(const FileStores &stores, LinkWatch *link, bool placesAbove, QWidget *parent);
    ~FilePane() override;

    void setPlaces(const QVector<FilePlace> &places);
    /** With an empty @p folder the one seen there last, or the place's home. */
    void showPlace(const FilePlace &place, const QString &folder = {});
    FilePlace place() const { return m_place; }
    void showFolder(const QString &path);
    QString folder() const { return m_folder; }
    QvexFileModel *files() const;
    FileListView *list() const { return m_list; }
    FileOperations *operations() const { return m_operations; }

    void setNameFilters(const QStringList &filters);
    void setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes);
    void setHeadFilter(const QString &appType, const QString &appTech);
    void setMultiple(bool multiple);
    /** Whether it is marked as the one that is worked with. */
    void setActive(bool active);

    /** Full paths; only of files if @p filesOnly. */
    QStringList selectedPaths(bool filesOnly) const;
    /** Whether there is such an entry in the folder, as far as it is listed. */
    bool hasEntry(const QString &name) const;
    void selectName(const QString &name);
    void showMessage(const QString &text);
    void showError(const QString &text);

public Q_SLOTS:
    void refresh();

Q_SIGNALS:
    void folderChanged();
    void selectionHasChanged();
    /** By a double tap or Return. */
    void fileOpened(const QString &path);
    /** A finger or the focus came here. */
    void touched();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makeParts(bool placesAbove);
    void arrange(bool placesAbove);
    void connectParts();
    void connectOperations();
    void useModel(QvexFileModel *model);
    void applyFilters(QvexFileModel *model) const;
    void showRoot(const QModelIndex &root);
    void updateText();
    void updateHeadButton();
    void updateHint();
    void updateActions();
    void updateLink();
    void rootMoved(const QString &path);
    void open(const QModelIndex &index);
    void goUp();
    void act(FileActionBar::Action action);
    void makeFolder();
    void awaitFolder(const QString &path);
    void editAwaited();
    QModelIndex rootIndex() const;

    const FileStores m_stores;
    LinkWatch *m_link;
    QHash<bool, QvexFileModel *> m_models; ///< by whether it is the instrument's
    QHash<QString, QString> m_lastFolders; ///< by the home of their place
    FilePlace m_place;
    QString m_folder;
    QString m_awaited; ///< a new folder's path, until its row is there
    QStringList m_nameFilters;
    QStringList m_vexPatterns;
    QStringList m_vexTypes;
    QString m_appType;
    QString m_appTech;
    PlaceBar *m_placeBar = nullptr;
    QToolButton *m_up = nullptr;
    BreadcrumbBar *m_crumbs = nullptr;
    QLineEdit *m_search = nullptr;
    QComboBox *m_types = nullptr;
    QToolButton *m_headOnly = nullptr;
    FileActionBar *m_actions = nullptr;
    QStackedLayout *m_stack = nullptr;
    FileListView *m_list = nullptr;
    PaneNotice *m_notice = nullptr;
    StatusStrip *m_status = nullptr;
    FileSortFilter *m_filter;
    FileOperations *m_operations;
    FolderWatch *m_watch;
};
