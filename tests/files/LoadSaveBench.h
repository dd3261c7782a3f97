#pragma once

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <files/FwLoadSaveDialog.h>
#include <files/QvexLocalFileModel.h>
#include <files/QvexRemoteFileModel.h>

#include "LocalFiles.h"

using namespace Qt::Literals::StringLiterals;

/** An application's window with the dialog under test, an instrument and a folder of this computer.
 */
class Bench
{
public:
    using Mode = FwLoadSaveDialog::Mode;
    using Place = FwLoadSaveDialog::Place;
    static constexpr int tickX = 20;
    static constexpr int nameX = 150;

    explicit Bench(Mode mode, FcpAppCORBA *controller = nullptr, QSize size = {1280, 800})
    {
        for (const char *name : {"b10.trc", "b9.trc", "notes.txt", "deep/inner.trc"}) {
            writeFile(local(QString::fromLatin1(name)), name);
        }
        window.setObjectName(u"FwMainWindow"_s);
        window.resize(size);
        window.show();
        FileStores stores;
        stores.controller = controller;
        stores.computerHome = local();
        stores.mediaRoots = {directory.filePath(u"media"_s)};
        stores.mountTable = directory.filePath(u"mounts"_s);
        stores.makeComputer = [](QObject *owner) { return new QvexLocalFileModel(owner); };
        if (controller) {
            stores.makeInstrument = [controller](QObject *owner) {
                auto *model = new QvexRemoteFileModel(controller, owner);
                model->setAsynchronous(true);
                return model;
            };
        }
        dialog = new FwLoadSaveDialog(mode, stores, &window);
        dialog->setFolder(Place::Computer, local());
    }

    void open(const QString &awaited = u"b9.trc"_s)
    {
        for (auto *each : dialog->findChildren<QTreeView *>(u"FileList"_s)) {
            using Tester = QAbstractItemModelTester;
            (new Tester(each->model(), Tester::FailureReportingMode::Fatal, each))
                ->setUseFetchMore(false);
        }
        dialog->open();
        QTRY_VERIFY(row(awaited, lists() - 1).isValid());
    }

    QString local(const QString &name = {}) const
    {
        const QString home = directory.filePath(u"home"_s);
        return name.isEmpty() ? home : home + u'/' + name;
    }

    template<typename Part>
    Part *part(const QString &name, int number = 0) const
    {
        Part *found = nullptr;
        int at = 0;
        for (Part *candidate : dialog->findChildren<Part *>(name)) {
            found = at++ == number ? candidate : found;
        }
        return found;
    }

    int lists() const { return int(dialog->findChildren<QTreeView *>(u"FileList"_s).size()); }
    QTreeView *list(int number = 0) const { return part<QTreeView>(u"FileList"_s, number); }

    QModelIndex row(const QString &name, int number = 0) const
    {
        const QModelIndex root = list(number)->rootIndex();
        for (int i = 0; i < list(number)->model()->rowCount(root); ++i) {
            const QModelIndex index = list(number)->model()->index(i, 0, root);
            if (index.data(QvexFileModel::FileNameRole).toString() == name) {
                return index;
            }
        }
        return {};
    }

    QStringList names(int number = 0) const
    {
        QStringList result;
        const QModelIndex root = list(number)->rootIndex();
        for (int i = 0; i < list(number)->model()->rowCount(root); ++i) {
            result += list(number)->model()->index(i, 0, root).data().toString();
        }
        return result;
    }

    void tapRow(const QString &name, int x = nameX, int number = 0) const
    {
        const QModelIndex index = row(name, number);
        list(number)->scrollTo(index);
        const QRect rect = list(number)->visualRect(index);
        QTest::mouseClick(list(number)->viewport(), Qt::LeftButton, {}, {x, rect.center().y()});
        QTest::qWait(0);
    }

    void tap(const QString &button, int number = 0) const
    {
        auto *found = part<QAbstractButton>(button, number);
        QVERIFY2(found, qPrintable(button));
        QTest::mouseClick(found, Qt::LeftButton);
    }

    void key(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(list(), static_cast<Qt::Key>(key), modifiers);
    }

    QTemporaryDir directory;
    QWidget window;
    FwLoadSaveDialog *dialog = nullptr;
};
