#include "PaneNotice.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "FilesTheme.h"

using namespace Qt::Literals::StringLiterals;

PaneNotice::PaneNotice(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel(this))
    , m_button(new QPushButton(this))
{
    m_label->setObjectName(u"NoticeText"_s);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setAlignment(Qt::AlignCenter);
    m_button->setObjectName(u"NoticeButton"_s);
    m_button->setAutoDefault(false);
    connect(m_button, &QPushButton::clicked, this, &PaneNotice::buttonTapped);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(2 * FilesTheme::gap);
    column->addStretch();
    column->addWidget(m_label);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    column->addStretch();
}

void PaneNotice::setNotice(const QString &text, const QString &buttonText)
{
    m_label->setText(text);
    setAccessibleName(text);
    m_button->setText(buttonText);
    m_button->setAccessibleName(buttonText);
    m_button->setVisible(!buttonText.isEmpty());
}
