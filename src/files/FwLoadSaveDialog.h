#pragma once

#include <QStringList>

#include <memory>

#include "FilePlace.h"
#include "VexExport.h"
#include "dialogs/QvexDialog.h"

class FcpAppCORBA;

/**
 * Finds files to load, a name to save under, or carries files between two places.
 *
 * The places are the instrument, this computer, and the removable media of this computer as they
 * come and go. A tap on a folder opens it, a tap on a file chooses it, and a tap on the tick in
 * front of a name selects that row without opening it. Where several may be selected, each tap on a
 * tick or a file adds one or takes it back.
 *
 * From a keyboard: Return opens, Backspace goes up, F2 renames, Delete deletes, F5 lists anew,
 * Space selects, Ctrl+A selects all where several may be selected, Escape closes.
 *
 * Nothing waits for the controller: while the link is lost the instrument's side says so and the
 * local side stays usable; it comes back by itself when there is a link again. Only the destructor
 * may, if a transfer is under way (see FileTransfer); closing asks and ends the transfer first.
 */
class VEX_EXPORT FwLoadSaveDialog : public QvexDialog
{
    Q_OBJECT
    Q_PROPERTY(QString defaultSuffix READ defaultSuffix WRITE setDefaultSuffix)
    Q_PROPERTY(QString fileName READ fileName WRITE setFileName)
    Q_PROPERTY(bool multiple READ isMultiple WRITE setMultiple)

public:
    enum class Mode {
        Load, ///< one existing file, or several with setMultiple()
        Save, ///< a name in a folder, which need not exist
        Transfer, ///< two places side by side; the dialog itself does the work
    };
    Q_ENUM(Mode)
    enum class Place { Instrument, Computer };
    Q_ENUM(Place)

    /** @p controller is not owned and must outlive this; null: this computer only. */
    FwLoadSaveDialog(Mode mode, FcpAppCORBA *controller, QWidget *parent);
    FwLoadSaveDialog(Mode mode, const FileStores &stores, QWidget *parent);
    ~FwLoadSaveDialog() override;

    Mode mode() const;

    /**
     * What the choice of types offers, as in QFileDialog: "Traces (*.trc *.xml)". The first one is
     * chosen. Without any all files are listed.
     */
    void setNameFilters(const QStringList &filters);
    /** Also see QvexFileModel::setVexFilters(). */
    void setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes);
    /**
     * Lists of the files whose XML head is looked into only those of an application and of a
     * technology; an empty text stands for any. For places of this computer.
     */
    void setHeadFilter(const QString &appType, const QString &appTech);

    /** Shows a folder; in Transfer on the side that shows that place. */
    void setFolder(FwLoadSaveDialog::Place place, const QString &path);
    /** The place last touched, in Transfer. */
    Place place() const;
    QString folder() const;

    /** Save: what the name field holds. Load: selects that file in the folder. */
    void setFileName(const QString &name);
    QString fileName() const;
    /** Without its dot; added to a name that has no suffix. */
    void setDefaultSuffix(const QString &suffix);
    QString defaultSuffix() const;
    /** Load only: whether several files may be chosen. False by default. */
    void setMultiple(bool multiple);
    bool isMultiple() const;

    /** Full paths of what was chosen, after accept(). */
    QStringList selectedFiles() const;

public Q_SLOTS:
    /** Tells that the link is up again; it is noticed within a second without this. */
    void linkRestored();
    /** Asks first when a transfer runs. */
    void closeDialog() override;

Q_SIGNALS:
    /** Load and Save; followed by accepted(). */
    void filesChosen(FwLoadSaveDialog::Place place, const QStringList &paths);

protected:
    QSize sizeHint() const override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
