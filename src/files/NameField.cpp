#include "NameField.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "FilePaths.h"
#include "FilesTheme.h"

using namespace Qt::Literals::StringLiterals;

NameField::NameField(QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
    , m_edit(new QLineEdit(this))
    , m_fault(new QLabel(this))
{
    m_label->setObjectName(u"NameLabel"_s);
    m_label->setBuddy(m_edit);
    m_edit->setObjectName(u"NameEdit"_s);
    m_fault->setObjectName(u"NameFault"_s);
    m_fault->setTextFormat(Qt::PlainText);
    connect(m_edit, &QLineEdit::textChanged, this, &NameField::check);
    connect(m_edit, &QLineEdit::returnPressed, this, &NameField::committed);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(FilesTheme::gap);
    row->addWidget(m_label);
    row->addWidget(m_edit, 1);
    row->addWidget(m_fault);
    setFocusProxy(m_edit);
    updateText();
}

void NameField::updateText()
{
    m_label->setText(tr("File name"));
    m_edit->setAccessibleName(tr("File name"));
}

void NameField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
        check();
    }
}

QString NameField::name() const
{
    return m_edit->text();
}

void NameField::setName(const QString &name)
{
    m_edit->setText(name);
    const qsizetype dot = name.lastIndexOf(u'.');
    m_edit->setSelection(0, int(dot > 0 ? dot : name.size()));
}

void NameField::setSuffix(const QString &suffix)
{
    m_suffix = suffix.startsWith(u'.') ? suffix.sliced(1) : suffix;
    check();
}

QString NameField::fileName() const
{
    const QString full = FilePaths::withSuffix(name().trimmed(), m_suffix);
    return FilePaths::nameFault(name()).isEmpty() && FilePaths::nameFault(full).isEmpty()
        ? full
        : QString();
}

void NameField::check()
{
    const QString fault = name().isEmpty() ? QString() : FilePaths::nameFault(name());
    QPalette colors;
    colors.setColor(QPalette::WindowText, FilesTheme::errorInk(palette()));
    m_fault->setPalette(colors);
    m_fault->setText(fault);
    m_fault->setVisible(!fault.isEmpty());
    m_edit->setAccessibleDescription(fault);
    Q_EMIT nameChanged();
}
