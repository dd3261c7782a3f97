#include "QvextHelpDialog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

#include "DialogTheme.h"
#include "HelpBrowser.h"

using namespace Qt::StringLiterals;

struct QvextHelpDialog::Private
{
    explicit Private(QvextHelpDialog *dialog)
        : q(dialog)
    {
    }

    QPushButton *addButton(const QString &name, const QString &icon, QHBoxLayout *row);
    void make();
    void updateTexts();

    QvextHelpDialog *const q;
    HelpBrowser *browser = nullptr;
    QPushButton *back = nullptr;
    QPushButton *forward = nullptr;
    QPushButton *home = nullptr;
};

QPushButton *QvextHelpDialog::Private::addButton(const QString &name, const QString &icon,
                                                 QHBoxLayout *row)
{
    auto *button = new QPushButton(q);
    button->setObjectName(name);
    button->setIcon(DialogTheme::icon(u":/images/%1.png"_s.arg(icon)));
    button->setIconSize({DialogTheme::tabIcon, DialogTheme::tabIcon});
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

void QvextHelpDialog::Private::make()
{
    browser = new HelpBrowser(q);
    browser->setObjectName(u"HelpBrowser"_s);
    QFont font = browser->font();
    font.setPixelSize(DialogTheme::fontSize);
    browser->setFont(font);
    browser->document()->setDocumentMargin(DialogTheme::spacing);
    auto *row = new QHBoxLayout;
    row->setSpacing(DialogTheme::spacing);
    back = addButton(u"HelpBack"_s, u"back"_s, row);
    forward = addButton(u"HelpForward"_s, u"forward"_s, row);
    home = addButton(u"HelpHome"_s, u"home"_s, row);
    row->addStretch();
    auto *column = new QVBoxLayout(q);
    column->setSpacing(DialogTheme::spacing);
    column->addLayout(row);
    column->addWidget(browser, 1);

    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, browser, &QTextBrowser::forward);
    connect(home, &QPushButton::clicked, q, [this] { q->setHelpUrl(q->helpUrl()); });
    connect(browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
}

void QvextHelpDialog::Private::updateTexts()
{
    q->setWindowTitle(tr("Help"));
    DialogTheme::setText(back, tr("Back"));
    DialogTheme::setText(forward, tr("Forward"));
    DialogTheme::setText(home, tr("Home"));
    browser->setAccessibleName(tr("Help page"));
}

QvextHelpDialog::QvextHelpDialog()
    : QvextHelpDialog(QString())
{
}

QvextHelpDialog::QvextHelpDialog(QString url)
    : QvexDialog(nullptr, true, true)
    , d(std::make_unique<Private>(this))
{
    d->make();
    d->updateTexts();
    resize(DialogTheme::helpSize);
    QvextHelpDialog::setHelpUrl(url);
}

QvextHelpDialog::~QvextHelpDialog() = default;

void QvextHelpDialog::setHelpUrl(const QString &url)
{
    QvexDialog::setHelpUrl(url);
    // There is no help on the help.
    setHelpVisible(false);
    d->browser->open(url);
}

void QvextHelpDialog::changeEvent(QEvent *event)
{
    QvexDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->updateTexts();
    } else if (event->type() == QEvent::PaletteChange && isVisible()) {
        DialogTheme::apply(this, &DialogTheme::buttonStyle);
    }
}

void QvextHelpDialog::showEvent(QShowEvent *event)
{
    DialogTheme::apply(this, &DialogTheme::buttonStyle);
    QvexDialog::showEvent(event);
}
