#pragma once

#include <QDialogButtonBox>

#include "QvexDialog.h"

class QPushButton;

/**
 * A message or question with buttons; one that has none when it is shown gets "OK".
 *
 * A button ends the box. exec(), finished() and result() tell the standard button as its
 * QDialogButtonBox::StandardButton, and a button that was added by addButton() with a text or a
 * button of one's own as 2 for the first such button, 3 for the second and so on. They tell 0 when
 * the box was ended in another way.
 *
 * Escape and the close button of the border act as Cancel does; without that, as the only button,
 * the only one with RejectRole or the only one with NoRole, in this order. Where none of these is
 * there they end the box with 0, which no button stands for. The same goes for reject().
 */
class VEX_EXPORT QvexMessageBox : public QvexDialog
{
    Q_OBJECT
    Q_PROPERTY(Icon icon READ icon WRITE setIcon)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString informativeText READ informativeText WRITE setInformativeText)
    Q_PROPERTY(QString detailedText READ detailedText WRITE setDetailedText)

public:
    enum Icon { NoIcon, Information, Warning, Critical, Question };
    Q_ENUM(Icon)

    using StandardButton = QDialogButtonBox::StandardButton;
    using StandardButtons = QDialogButtonBox::StandardButtons;

    explicit QvexMessageBox(QWidget *parent);
    ~QvexMessageBox() override;

    /** NoIcon by default. */
    Icon icon() const;
    void setIcon(Icon icon);

    /** The message itself. All texts are plain: markup is shown as it is. */
    QString text() const;
    void setText(const QString &text);
    /** What there is to say besides, in smaller type below. */
    QString informativeText() const;
    void setInformativeText(const QString &text);
    /** What is seen only after a tap on "Show Details". */
    QString detailedText() const;
    void setDetailedText(const QString &text);

    /** Replaces the standard buttons; others stay. */
    void setStandardButtons(StandardButtons buttons);
    /** The box takes ownership of @p button. */
    void addButton(QAbstractButton *button, QDialogButtonBox::ButtonRole role);
    QPushButton *addButton(StandardButton button);
    QPushButton *addButton(const QString &text, QDialogButtonBox::ButtonRole role);
    /** Null if it is not there. */
    QPushButton *button(StandardButton button) const;

    /** The one that Return presses; it has the focus at first. It must have been added before. */
    void setDefaultButton(StandardButton button);
    /** Null as long as none was clicked. */
    QAbstractButton *clickedButton() const;

    /** Translates the texts anew; done on every language change. */
    void UpdateText();

    void setVisible(bool visible) override;

    /**
     * Runs a box with @p title and @p text. @return The button that was clicked; NoButton where
     * exec() does not run, or ended otherwise.
     */
    static StandardButton information(QWidget *parent, const QString &title, const QString &text,
                                      StandardButtons buttons = QDialogButtonBox::Ok,
                                      StandardButton defaultButton = QDialogButtonBox::NoButton);
    static StandardButton warning(QWidget *parent, const QString &title, const QString &text,
                                  StandardButtons buttons = QDialogButtonBox::Ok,
                                  StandardButton defaultButton = QDialogButtonBox::NoButton);
    static StandardButton critical(QWidget *parent, const QString &title, const QString &text,
                                   StandardButtons buttons = QDialogButtonBox::Ok,
                                   StandardButton defaultButton = QDialogButtonBox::NoButton);
    static StandardButton question(QWidget *parent, const QString &title, const QString &text,
                                   StandardButtons buttons = QDialogButtonBox::Yes
                                       | QDialogButtonBox::No,
                                   StandardButton defaultButton = QDialogButtonBox::NoButton);

public Q_SLOTS:
    void closeDialog() override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void _q_clicked(QAbstractButton *button);

private:
    struct Private;

    static StandardButton ask(Icon icon, QWidget *parent, const QString &title, const QString &text,
                              StandardButtons buttons, StandardButton defaultButton);

    const std::unique_ptr<Private> d;
};
