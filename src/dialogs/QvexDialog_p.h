#pragma once

#include <QMetaObject>

#include "QvexDialog.h"
#include "QvexDialogBorder.h"

class QEventLoop;

/// Where a dialog is drawn, and what surrounds it there.
struct QvexDialog::Private
{
    Private(QvexDialog *dialog, bool withBorderButtons);

    void makeBorder(bool withBorderButtons, bool movable);
    void makeShield();

    QWidget *parentApplication() const;
    void setOwner(QWidget *widget);

    void enterSurface();
    void show();
    void moveTo(QWidget *target);
    void leaveSurface();
    void showAround();
    void leave();
    void restack();

    QMargins margins() const { return borderVisible ? border->margins() : QMargins(); }
    QSize wantedSize() const;
    void fit();
    void place();
    void follow();
    void refresh();
    static void rejectAllIn(const QWidget *window);

    QvexDialog *const q;
    std::unique_ptr<QWidget> host; ///< stands in for a parent application that is not visible
    std::unique_ptr<QvexDialogBorder> border;
    std::unique_ptr<QWidget> shield; ///< covers the parent application while the dialog runs
    QPointer<QWidget> owner;
    QPointer<QWidget> application;
    QPointer<QWidget> surface; ///< what the dialog is drawn in
    QPointer<QWidget> focusFirst;
    QMetaObject::Connection ownerGone;
    QMetaObject::Connection surfaceGone;
    QEventLoop *loop = nullptr;
    QPoint home; ///< the position without the shared offset, when it was set by move()
    QPoint placed;
    QString title;
    QString helpUrl;
    bool withButtons;
    bool borderVisible = true;
    bool autoClose = false;
    bool running = false;
    bool arranging = false; ///< parent, position or size are being changed from in here
};
