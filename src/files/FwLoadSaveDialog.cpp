#include "FwLoadSaveDialog.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>

#include "FileListView.h"
#include "FileNames.h"
#include "FilePane.h"
#include "FilePaths.h"
#include "FilesTheme.h"
#include "LinkWatch.h"
#include "MediaWatcher.h"
#include "NameField.h"
#include "QvexLocalFileModel.h"
#include "QvexRemoteFileModel.h"
#include "TransferView.h"
#include "corba/FcpAppCORBA.h"
#include "dialogs/DialogTheme.h"
#include "dialogs/QvexMessageBox.h"

using namespace Qt::Literals::StringLiterals;

namespace {

FileStores storesOf(FcpAppCORBA *controller)
{
    FileStores stores;
    stores.controller = controller;
    stores.computerHome = QDir::homePath();
    stores.makeComputer = [](QObject *owner) { return new QvexLocalFileModel(owner); };
    if (controller) {
        stores.makeInstrument = [controller](QObject *owner) {
            auto *model = new QvexRemoteFileModel(controller, owner);
            model->setAsynchronous(true);
            return model;
        };
    }
    return stores;
}

QString dialogStyle(const QPalette &palette)
{
    return DialogTheme::buttonStyle(palette) + FilesTheme::style(palette);
}

} // namespace

struct FwLoadSaveDialog::Private
{
    Private(FwLoadSaveDialog *dialog, Mode dialogMode, const FileStores &dialogStores);

    void make();
    void makeBrowser();
    void makeTransfer();
    QPushButton *makeButton(const QString &name);
    QVector<FilePlace> places() const;
    QVector<FilePane *> panes() const;
    FilePane *active() const;
    FilePane *paneOf(Place place) const;
    FilePlace placeFor(Place place, const QString &path) const;
    void updatePlaces();
    void showFirstFolders();
    void updateText();
    void updateButton();
    void takeName();
    void commit();
    void save();
    void askToOverwrite(const QString &path);
    void choose(const QStringList &paths);
    void askToCancel();

    FwLoadSaveDialog *const q;
    const Mode mode;
    const FileStores stores;
    LinkWatch *link;
    MediaWatcher *media;
    FilePane *pane = nullptr; ///< of Load and Save
    TransferView *transfer = nullptr; ///< of Transfer
    NameField *name = nullptr; ///< of Save
    QPushButton *commitButton = nullptr;
    QPushButton *cancelButton = nullptr;
    QStringList chosen;
};

FwLoadSaveDialog::Private::Private(FwLoadSaveDialog *dialog, Mode dialogMode,
                                   const FileStores &dialogStores)
    : q(dialog)
    , mode(dialogMode)
    , stores(dialogStores)
    , link(new LinkWatch(dialogStores.controller, dialog))
    , media(new MediaWatcher(dialogStores.mediaRoots, dialogStores.mountTable, dialog))
{
}

void FwLoadSaveDialog::Private::make()
{
    if (mode == Mode::Transfer) {
        makeTransfer();
    } else {
        makeBrowser();
    }
    updateText();
    updatePlaces();
    connect(media, &MediaWatcher::mediaChanged, q, [this] { updatePlaces(); });
    updateButton();
}

QPushButton *FwLoadSaveDialog::Private::makeButton(const QString &buttonName)
{
    auto *button = new QPushButton(q);
    button->setObjectName(buttonName);
    button->setAutoDefault(false);
    return button;
}

void FwLoadSaveDialog::Private::makeBrowser()
{
    const bool saves = mode == Mode::Save;
    auto *actions = new QHBoxLayout;
    actions->setSpacing(DialogTheme::spacing);
    if (saves) {
        name = new NameField(q);
        name->setObjectName(u"NameField"_s);
        actions->addWidget(name, 1);
        connect(name, &NameField::nameChanged, q, [this] { updateButton(); });
        connect(name, &NameField::committed, q, [this] { commit(); });
    } else {
        actions->addStretch();
    }
    cancelButton = makeButton(u"CancelButton"_s);
    commitButton = makeButton(u"CommitButton"_s);
    actions->addWidget(cancelButton);
    actions->addWidget(commitButton);
    pane = new FilePane(stores, link, false, q);
    pane->setObjectName(u"FilePane"_s);
    auto *column = new QVBoxLayout(q);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(pane, 1);
    // An on-screen keyboard covers what is at the bottom while a name is typed.
    column->insertLayout(saves ? 0 : 1, actions);
    connect(cancelButton, &QPushButton::clicked, q, [this] { q->closeDialog(); });
    connect(commitButton, &QPushButton::clicked, q, [this] { commit(); });
    connect(pane, &FilePane::selectionHasChanged, q, [this] { takeName(); });
    connect(pane, &FilePane::fileOpened, q, [this](const QString &) { commit(); });
}

void FwLoadSaveDialog::Private::makeTransfer()
{
    transfer = new TransferView(stores, link, q);
    transfer->setObjectName(u"TransferView"_s);
    auto *column = new QVBoxLayout(q);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(transfer, 1);
}

QVector<FilePlace> FwLoadSaveDialog::Private::places() const
{
    QVector<FilePlace> result;
    if (stores.makeInstrument) {
        result += {FilePlace::Kind::Instrument, tr("Instrument"), stores.instrumentHome};
    }
    result += {FilePlace::Kind::Computer, tr("Computer"), stores.computerHome};
    for (const QString &mount : media->media()) {
        result += {FilePlace::Kind::Medium, FilePaths::nameOf(mount), mount};
    }
    return result;
}

QVector<FilePane *> FwLoadSaveDialog::Private::panes() const
{
    return transfer ? QVector<FilePane *> {transfer->left(), transfer->right()}
                    : QVector<FilePane *> {pane};
}

FilePane *FwLoadSaveDialog::Private::active() const
{
    return transfer ? transfer->active() : pane;
}

FilePane *FwLoadSaveDialog::Private::paneOf(Place place) const
{
    if (!transfer) {
        return pane;
    }
    const bool isLocal = place == Place::Computer;
    for (FilePane *candidate : panes()) {
        if (!candidate->folder().isEmpty() && candidate->place().isLocal() == isLocal) {
            return candidate;
        }
    }
    return isLocal ? transfer->right() : transfer->left();
}

/// A path on a medium is shown as that medium's.
FilePlace FwLoadSaveDialog::Private::placeFor(Place place, const QString &path) const
{
    const QVector<FilePlace> all = places();
    FilePlace found = all.constFirst();
    for (const FilePlace &candidate : all) {
        const bool isMedium = candidate.kind == FilePlace::Kind::Medium;
        const bool fits = candidate.isLocal() == (place == Place::Computer);
        if (fits && (!isMedium || path.startsWith(candidate.home))) {
            found = candidate;
        }
    }
    return found;
}

void FwLoadSaveDialog::Private::updatePlaces()
{
    for (FilePane *each : panes()) {
        each->setPlaces(places());
    }
}

void FwLoadSaveDialog::Private::showFirstFolders()
{
    const QVector<FilePlace> all = places();
    for (FilePane *each : panes()) {
        if (each->folder().isEmpty()) {
            const bool isSecond = transfer && each == transfer->right();
            each->showPlace(all.value(isSecond ? 1 : 0, all.constFirst()));
        }
    }
}

void FwLoadSaveDialog::Private::updateText()
{
    const QString titles[] {tr("Load"), tr("Save"), tr("Transfer files")};
    q->setWindowTitle(titles[static_cast<int>(mode)]);
    if (commitButton) {
        commitButton->setText(mode == Mode::Save ? tr("Save") : tr("Open"));
        commitButton->setAccessibleName(commitButton->text());
        cancelButton->setText(tr("Cancel"));
        cancelButton->setAccessibleName(cancelButton->text());
    }
}

void FwLoadSaveDialog::Private::updateButton()
{
    if (mode == Mode::Save) {
        const bool isThere = pane->place().isLocal() || !link->isLost();
        commitButton->setEnabled(isThere && !pane->folder().isEmpty()
                                 && !name->fileName().isEmpty());
    } else if (mode == Mode::Load) {
        commitButton->setEnabled(!pane->selectedPaths(true).isEmpty());
    }
}

void FwLoadSaveDialog::Private::takeName()
{
    const QStringList files = pane->selectedPaths(true);
    if (name && !files.isEmpty()) {
        name->setName(FilePaths::nameOf(files.constFirst()));
    }
    updateButton();
}

void FwLoadSaveDialog::Private::commit()
{
    const QStringList files = pane->selectedPaths(true);
    if (mode == Mode::Save) {
        save();
    } else if (!files.isEmpty()) {
        choose(files);
    }
}

void FwLoadSaveDialog::Private::save()
{
    const QString file = name->fileName();
    if (file.isEmpty() || !commitButton->isEnabled()) {
        const QString fault = FilePaths::nameFault(name->name());
        pane->showError(fault.isEmpty() ? tr("Nothing can be saved here now.") : fault);
        return;
    }
    const QString path = FilePaths::join(pane->folder(), file);
    const QModelIndex there = pane->files()->fileIndex(path);
    const bool isLocalFile = pane->place().isLocal() && QFileInfo::exists(path);
    if (there.isValid() && pane->files()->isDir(there)) {
        pane->showError(tr("There is a folder with the name \"%1\".").arg(FileNames::shown(file)));
    } else if (there.isValid() || isLocalFile) {
        askToOverwrite(path);
    } else {
        choose({path});
    }
}

void FwLoadSaveDialog::Private::askToOverwrite(const QString &path)
{
    auto *box = new QvexMessageBox(q);
    box->setObjectName(u"OverwriteQuestion"_s);
    box->setWindowTitle(tr("Save"));
    box->setIcon(QvexMessageBox::Warning);
    box->setText(tr("\"%1\" exists already. Overwrite it?").arg(FilePaths::shownNameOf(path)));
    box->setInformativeText(tr("What it holds now will be lost."));
    const QPushButton *yes = box->addButton(tr("Overwrite"), QDialogButtonBox::DestructiveRole);
    box->addButton(QDialogButtonBox::Cancel);
    box->setDefaultButton(QDialogButtonBox::Cancel);
    connect(box, &QDialog::finished, q, [this, box, yes, path] {
        box->deleteLater();
        if (box->clickedButton() == yes) {
            choose({path});
        }
    });
    box->open();
}

void FwLoadSaveDialog::Private::choose(const QStringList &paths)
{
    chosen = paths;
    const QPointer<FwLoadSaveDialog> guard(q);
    Q_EMIT q->filesChosen(q->place(), paths);
    if (guard) {
        q->accept();
    }
}

void FwLoadSaveDialog::Private::askToCancel()
{
    auto *box = new QvexMessageBox(q);
    box->setObjectName(u"CancelQuestion"_s);
    box->setWindowTitle(tr("Transfer"));
    box->setIcon(QvexMessageBox::Question);
    box->setText(tr("Files are being copied. Cancel that and close?"));
    box->setInformativeText(tr("What has been copied so far stays."));
    const QPushButton *yes =
        box->addButton(tr("Cancel and close"), QDialogButtonBox::DestructiveRole);
    const QPushButton *no = box->addButton(tr("Go on"), QDialogButtonBox::RejectRole);
    Q_UNUSED(no)
    connect(box, &QDialog::finished, q, [this, box, yes] {
        box->deleteLater();
        if (box->clickedButton() != yes) {
            return;
        }
        if (!transfer->isTransferring()) {
            q->reject();
        } else {
            connect(transfer, &TransferView::transferEnded, q, &QDialog::reject);
            transfer->cancel();
        }
    });
    box->open();
}

FwLoadSaveDialog::FwLoadSaveDialog(Mode mode, FcpAppCORBA *controller, QWidget *parent)
    : FwLoadSaveDialog(mode, storesOf(controller), parent)
{
}

FwLoadSaveDialog::FwLoadSaveDialog(Mode mode, const FileStores &stores, QWidget *parent)
    : QvexDialog(parent, true, false)
    , d(std::make_unique<Private>(this, mode, stores))
{
    d->make();
}

FwLoadSaveDialog::~FwLoadSaveDialog()
{
    // Parts tell of what they do until they are gone, which needs the private data.
    delete d->transfer;
    delete d->pane;
}

FwLoadSaveDialog::Mode FwLoadSaveDialog::mode() const
{
    return d->mode;
}

void FwLoadSaveDialog::setNameFilters(const QStringList &filters)
{
    for (FilePane *pane : d->panes()) {
        pane->setNameFilters(filters);
    }
}

void FwLoadSaveDialog::setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes)
{
    for (FilePane *pane : d->panes()) {
        pane->setVexFilters(nameFilters, fileTypes);
    }
}

void FwLoadSaveDialog::setHeadFilter(const QString &appType, const QString &appTech)
{
    for (FilePane *pane : d->panes()) {
        pane->setHeadFilter(appType, appTech);
    }
}

void FwLoadSaveDialog::setFolder(FwLoadSaveDialog::Place place, const QString &path)
{
    d->paneOf(place)->showPlace(d->placeFor(place, path), path);
}

FwLoadSaveDialog::Place FwLoadSaveDialog::place() const
{
    return d->active()->place().isLocal() ? Place::Computer : Place::Instrument;
}

QString FwLoadSaveDialog::folder() const
{
    return d->active()->folder();
}

void FwLoadSaveDialog::setFileName(const QString &name)
{
    if (d->name) {
        d->name->setName(name);
    } else {
        d->active()->selectName(name);
    }
}

QString FwLoadSaveDialog::fileName() const
{
    if (d->name) {
        return d->name->name();
    }
    const QStringList files = d->active()->selectedPaths(true);
    return files.isEmpty() ? QString() : FilePaths::nameOf(files.constFirst());
}

void FwLoadSaveDialog::setDefaultSuffix(const QString &suffix)
{
    if (d->name) {
        d->name->setSuffix(suffix);
    }
}

QString FwLoadSaveDialog::defaultSuffix() const
{
    return d->name ? d->name->suffix() : QString();
}

void FwLoadSaveDialog::setMultiple(bool multiple)
{
    if (d->mode == Mode::Load) {
        d->pane->setMultiple(multiple);
    }
}

bool FwLoadSaveDialog::isMultiple() const
{
    return d->active()->list()->isMultiple();
}

QStringList FwLoadSaveDialog::selectedFiles() const
{
    return d->chosen;
}

void FwLoadSaveDialog::linkRestored()
{
    d->link->look();
}

void FwLoadSaveDialog::closeDialog()
{
    if (d->transfer && d->transfer->isTransferring()) {
        d->askToCancel();
    } else {
        QvexDialog::closeDialog();
    }
}

QSize FwLoadSaveDialog::sizeHint() const
{
    const QWidget *application = parentApplication();
    return application ? application->size() : DialogTheme::screenSize;
}

void FwLoadSaveDialog::changeEvent(QEvent *event)
{
    QvexDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        DialogTheme::apply(this, &dialogStyle);
    } else if (event->type() == QEvent::LanguageChange) {
        d->updateText();
        d->updatePlaces();
    }
}

void FwLoadSaveDialog::showEvent(QShowEvent *event)
{
    DialogTheme::apply(this, &dialogStyle);
    d->showFirstFolders();
    if (d->name) {
        d->name->setFocus();
    } else {
        d->active()->list()->setFocus();
    }
    QvexDialog::showEvent(event);
}
