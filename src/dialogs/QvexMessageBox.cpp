#include "QvexMessageBox.h"

#include <QGridLayout>
#include <QHash>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>

#include "DialogTheme.h"
#include "FingerScroll.h"
#include "MessageText.h"

using namespace Qt::StringLiterals;

namespace {

using Box = QDialogButtonBox;

constexpr int FirstOwnButton = 2;

constexpr std::pair<Box::StandardButton, const char *> StandardTexts[] {
    {Box::Ok, QT_TRANSLATE_NOOP("QvexMessageBox", "OK")},
    {Box::Open, QT_TRANSLATE_NOOP("QvexMessageBox", "Open")},
    {Box::Save, QT_TRANSLATE_NOOP("QvexMessageBox", "Save")},
    {Box::Cancel, QT_TRANSLATE_NOOP("QvexMessageBox", "Cancel")},
    {Box::Close, QT_TRANSLATE_NOOP("QvexMessageBox", "Close")},
    {Box::Discard, QT_TRANSLATE_NOOP("QvexMessageBox", "Discard")},
    {Box::Apply, QT_TRANSLATE_NOOP("QvexMessageBox", "Apply")},
    {Box::Reset, QT_TRANSLATE_NOOP("QvexMessageBox", "Reset")},
    {Box::RestoreDefaults, QT_TRANSLATE_NOOP("QvexMessageBox", "Restore Defaults")},
    {Box::Help, QT_TRANSLATE_NOOP("QvexMessageBox", "Help")},
    {Box::SaveAll, QT_TRANSLATE_NOOP("QvexMessageBox", "Save All")},
    {Box::Yes, QT_TRANSLATE_NOOP("QvexMessageBox", "Yes")},
    {Box::YesToAll, QT_TRANSLATE_NOOP("QvexMessageBox", "Yes to All")},
    {Box::No, QT_TRANSLATE_NOOP("QvexMessageBox", "No")},
    {Box::NoToAll, QT_TRANSLATE_NOOP("QvexMessageBox", "No to All")},
    {Box::Abort, QT_TRANSLATE_NOOP("QvexMessageBox", "Abort")},
    {Box::Retry, QT_TRANSLATE_NOOP("QvexMessageBox", "Retry")},
    {Box::Ignore, QT_TRANSLATE_NOOP("QvexMessageBox", "Ignore")},
};

QPixmap pictureOf(QvexMessageBox::Icon icon)
{
    static const QHash<QvexMessageBox::Icon, QString> names {
        {QvexMessageBox::Information, u"information"_s},
        {QvexMessageBox::Warning, u"warning"_s},
        {QvexMessageBox::Critical, u"critical"_s},
        {QvexMessageBox::Question, u"question"_s},
    };
    const QSize size(DialogTheme::messageIcon, DialogTheme::messageIcon);
    return DialogTheme::icon(u":/images/%1.png"_s.arg(names.value(icon))).pixmap(size);
}

} // namespace

struct QvexMessageBox::Private
{
    explicit Private(QvexMessageBox *box)
        : q(box)
    {
    }

    void make();
    void makeDetails();
    void arrange();
    void showDetails(bool shown);
    QAbstractButton *escapeButton() const;
    QAbstractButton *mainButton() const;
    QAbstractButton *onlyOneWith(Box::ButtonRole role) const;
    int codeOf(QAbstractButton *button) const;

    QvexMessageBox *const q;
    Icon icon = NoIcon;
    QLabel *picture = nullptr;
    MessageText *message = nullptr;
    QPlainTextEdit *details = nullptr;
    QPushButton *detailsButton = nullptr;
    Box *buttons = nullptr;
    QList<QPointer<QAbstractButton>> ownButtons; ///< null where one was deleted
    QPointer<QAbstractButton> clicked;
};

void QvexMessageBox::Private::make()
{
    picture = new QLabel(q);
    picture->setObjectName(u"MsgIcon"_s);
    picture->setFixedSize(DialogTheme::messageIcon, DialogTheme::messageIcon);
    picture->hide();
    message = new MessageText(q);
    buttons = new Box(q);
    buttons->setObjectName(u"MsgButtons"_s);
    connect(buttons, &Box::clicked, q, &QvexMessageBox::_q_clicked);
    makeDetails();
    arrange();
}

void QvexMessageBox::Private::makeDetails()
{
    details = new QPlainTextEdit(q);
    details->setObjectName(u"MsgDetails"_s);
    details->setReadOnly(true);
    details->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    details->setTabChangesFocus(true);
    details->setFixedHeight(DialogTheme::detailsHeight);
    QFont font = details->font();
    font.setPixelSize(DialogTheme::fontSize);
    details->setFont(font);
    details->hide();
    new FingerScroll(details);
    detailsButton = new QPushButton(q);
    detailsButton->setObjectName(u"MsgDetailsButton"_s);
    detailsButton->setCheckable(true);
    detailsButton->setAutoDefault(false);
    detailsButton->setIconSize({DialogTheme::smallIcon, DialogTheme::smallIcon});
    detailsButton->hide();
    connect(detailsButton, &QPushButton::toggled, q, [this](bool on) { showDetails(on); });
}

void QvexMessageBox::Private::arrange()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(2 * DialogTheme::spacing);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addWidget(message, 1);
    auto *actions = new QHBoxLayout;
    actions->setSpacing(DialogTheme::spacing);
    actions->addWidget(detailsButton);
    actions->addWidget(buttons, 1);
    auto *column = new QVBoxLayout(q);
    const int margin = DialogTheme::spacing;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(2 * DialogTheme::spacing);
    column->addLayout(row, 1);
    column->addWidget(details);
    column->addLayout(actions);
}

void QvexMessageBox::Private::showDetails(bool shown)
{
    details->setVisible(shown);
    q->UpdateText();
}

QAbstractButton *QvexMessageBox::Private::onlyOneWith(Box::ButtonRole role) const
{
    QAbstractButton *found = nullptr;
    for (QAbstractButton *button : buttons->buttons()) {
        if (buttons->buttonRole(button) == role) {
            if (found) {
                return nullptr;
            }
            found = button;
        }
    }
    return found;
}

QAbstractButton *QvexMessageBox::Private::escapeButton() const
{
    if (QAbstractButton *cancel = buttons->button(Box::Cancel)) {
        return cancel;
    }
    const QList<QAbstractButton *> all = buttons->buttons();
    if (all.size() == 1) {
        return all.first();
    }
    QAbstractButton *rejecting = onlyOneWith(Box::RejectRole);
    return rejecting ? rejecting : onlyOneWith(Box::NoRole);
}

/// What Return presses when no default button was chosen, as the button box decides it.
QAbstractButton *QvexMessageBox::Private::mainButton() const
{
    const QList<QAbstractButton *> all = buttons->buttons();
    const auto accepting = std::find_if(all.cbegin(), all.cend(), [this](QAbstractButton *button) {
        return buttons->buttonRole(button) == Box::AcceptRole;
    });
    return accepting == all.cend() ? all.first() : *accepting;
}

int QvexMessageBox::Private::codeOf(QAbstractButton *button) const
{
    const auto own = ownButtons.indexOf(button);
    return own >= 0 ? FirstOwnButton + int(own) : int(buttons->standardButton(button));
}

QvexMessageBox::QvexMessageBox(QWidget *parent)
    : QvexDialog(parent)
    , d(std::make_unique<Private>(this))
{
    d->make();
    UpdateText();
}

QvexMessageBox::~QvexMessageBox() = default;

QvexMessageBox::Icon QvexMessageBox::icon() const
{
    return d->icon;
}

void QvexMessageBox::setIcon(Icon icon)
{
    if (icon < NoIcon || icon > Question) {
        return; // from a property that was set to some number
    }
    d->icon = icon;
    d->picture->setPixmap(icon == NoIcon ? QPixmap() : pictureOf(icon));
    d->picture->setVisible(icon != NoIcon);
    UpdateText();
}

QString QvexMessageBox::text() const
{
    return d->message->text();
}

void QvexMessageBox::setText(const QString &text)
{
    d->message->setText(text);
    setAccessibleDescription(text);
}

QString QvexMessageBox::informativeText() const
{
    return d->message->informativeText();
}

void QvexMessageBox::setInformativeText(const QString &text)
{
    d->message->setInformativeText(text);
}

QString QvexMessageBox::detailedText() const
{
    return d->details->toPlainText();
}

void QvexMessageBox::setDetailedText(const QString &text)
{
    d->details->setPlainText(text);
    d->detailsButton->setVisible(!text.isEmpty());
    if (text.isEmpty()) {
        d->detailsButton->setChecked(false);
    }
}

void QvexMessageBox::setStandardButtons(StandardButtons buttons)
{
    d->buttons->setStandardButtons(buttons);
    UpdateText();
}

void QvexMessageBox::addButton(QAbstractButton *button, QDialogButtonBox::ButtonRole role)
{
    if (button && !d->ownButtons.contains(button)) {
        d->ownButtons.append(button);
        d->buttons->addButton(button, role);
    }
}

QPushButton *QvexMessageBox::addButton(StandardButton button)
{
    QPushButton *added = d->buttons->button(button);
    if (!added) {
        added = d->buttons->addButton(button);
        UpdateText();
    }
    return added;
}

QPushButton *QvexMessageBox::addButton(const QString &text, QDialogButtonBox::ButtonRole role)
{
    QPushButton *added = d->buttons->addButton(text, role);
    if (added) {
        d->ownButtons.append(added);
    }
    return added;
}

QPushButton *QvexMessageBox::button(StandardButton button) const
{
    return d->buttons->button(button);
}

void QvexMessageBox::setDefaultButton(StandardButton button)
{
    if (QPushButton *chosen = d->buttons->button(button)) {
        chosen->setDefault(true);
        chosen->setFocus();
    }
}

QAbstractButton *QvexMessageBox::clickedButton() const
{
    return d->clicked;
}

void QvexMessageBox::UpdateText()
{
    for (const auto &[button, text] : StandardTexts) {
        if (QPushButton *shown = d->buttons->button(button)) {
            shown->setText(tr(text));
        }
    }
    const bool open = d->detailsButton->isChecked();
    DialogTheme::setText(d->detailsButton, open ? tr("Hide Details") : tr("Show Details"));
    d->detailsButton->setIcon(
        DialogTheme::icon(open ? u":/images/chevron_up.png"_s : u":/images/chevron_down.png"_s));
    d->details->setAccessibleName(tr("Details"));
    const QString kinds[] {QString(), tr("Information"), tr("Warning"), tr("Error"),
                           tr("Question")};
    d->picture->setAccessibleName(kinds[d->icon]);
}

void QvexMessageBox::setVisible(bool visible)
{
    if (visible && d->buttons->buttons().isEmpty()) {
        addButton(QDialogButtonBox::Ok);
    }
    if (visible && isHidden()) {
        d->clicked = nullptr;
        if (!focusWidget() || focusWidget() == d->detailsButton) {
            d->mainButton()->setFocus();
        }
        DialogTheme::apply(this, &DialogTheme::buttonStyle);
    }
    QvexDialog::setVisible(visible);
}

void QvexMessageBox::closeDialog()
{
    QAbstractButton *button = d->escapeButton();
    if (button && button->isEnabled()) {
        button->click();
    } else {
        QvexDialog::closeDialog();
    }
}

bool QvexMessageBox::event(QEvent *event)
{
    const bool handled = QvexDialog::event(event);
    if (event->type() == QEvent::LanguageChange) {
        // Only now: the button box, a child, has just set texts of its own.
        UpdateText();
    }
    return handled;
}

void QvexMessageBox::changeEvent(QEvent *event)
{
    QvexDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        DialogTheme::apply(this, &DialogTheme::buttonStyle);
    }
}

void QvexMessageBox::_q_clicked(QAbstractButton *button)
{
    d->clicked = button;
    done(d->codeOf(button));
}

QvexMessageBox::StandardButton QvexMessageBox::ask(Icon icon, QWidget *parent, const QString &title,
                                                   const QString &text, StandardButtons buttons,
                                                   StandardButton defaultButton)
{
    // The parent may be deleted meanwhile, and the box with it.
    const QPointer<QvexMessageBox> box = new QvexMessageBox(parent);
    box->setIcon(icon);
    box->setWindowTitle(title);
    box->setText(text);
    box->setStandardButtons(buttons);
    box->setDefaultButton(defaultButton);
    box->exec();
    const auto answer = box && box->d->clicked ? box->d->buttons->standardButton(box->d->clicked)
                                               : QDialogButtonBox::NoButton;
    delete box;
    return answer;
}

QvexMessageBox::StandardButton QvexMessageBox::information(QWidget *parent, const QString &title,
                                                           const QString &text,
                                                           StandardButtons buttons,
                                                           StandardButton defaultButton)
{
    return ask(Information, parent, title, text, buttons, defaultButton);
}

QvexMessageBox::StandardButton QvexMessageBox::warning(QWidget *parent, const QString &title,
                                                       const QString &text, StandardButtons buttons,
                                                       StandardButton defaultButton)
{
    return ask(Warning, parent, title, text, buttons, defaultButton);
}

QvexMessageBox::StandardButton QvexMessageBox::critical(QWidget *parent, const QString &title,
                                                        const QString &text,
                                                        StandardButtons buttons,
                                                        StandardButton defaultButton)
{
    return ask(Critical, parent, title, text, buttons, defaultButton);
}

QvexMessageBox::StandardButton QvexMessageBox::question(QWidget *parent, const QString &title,
                                                        const QString &text,
                                                        StandardButtons buttons,
                                                        StandardButton defaultButton)
{
    return ask(Question, parent, title, text, buttons, defaultButton);
}
