#include "NumberFieldsPage.h"

#include "../Finger.h"
#include "../Look.h"

#include <input/QLineEditBase4.h>
#include <input/QLineEditBin.h>
#include <input/QLineEditCodingPAM4.h>
#include <input/QLineEditHex.h>
#include <input/QLineEditNumber.h>

#include <QFormLayout>

using namespace Qt::Literals::StringLiterals;

NumberFieldsPage::NumberFieldsPage()
    : Page(u"number-fields"_s, tr("Number fields"),
           tr("Fields for numbers: a tap opens the numpad, or the keys that turn single digits."))
{
}

QWidget *NumberFieldsPage::recipe(QWidget *parent)
{
    auto *form = new QFormLayout(new QWidget(parent));
    m_level = new QLineEditNumber; // a tap opens the keys, or the numpad when that was used last
    m_level->setTitle(tr("Level in dBm"));
    m_level->setDecimals(3);
    m_level->setMinimum(-60.0);
    m_level->setMaximum(1250.0);
    m_level->setValue(1234.567);
    connect(m_level, &QLineEditNumber::valueChanged, this,
            [this] { note(u"valueChanged"_s, m_level->value()); });
    addField(form, tr("Level"), m_level);
    addRadix<QLineEditHex>(form, tr("Hexadecimal"));
    addRadix<QLineEditBin>(form, tr("Binary"));
    addRadix<QLineEditBase4>(form, tr("Base 4"));
    addRadix<QLineEditCodingPAM4>(form, tr("PAM4 coding"));
    watch(u"value()"_s, [this] { return m_level->value(); });
    return form->parentWidget();
}

/// The label stands beside the middle of its field, which is as high as a finger.
void NumberFieldsPage::addField(QFormLayout *form, const QString &label, QWidget *field)
{
    form->setVerticalSpacing(4);
    field->setMinimumHeight(Look::fingerSize);
    form->addRow(label, field);
    form->labelForField(field)->setMinimumHeight(Look::fingerSize);
}

template<typename Field>
void NumberFieldsPage::addRadix(QFormLayout *form, const QString &label)
{
    auto *field = new Field;
    field->setWindowTitle(label);
    field->setMaximum(0xFFF);
    field->setValue(0x1B);
    addField(form, label, field);
}

QVector<Page::Scene> NumberFieldsPage::scenes()
{
    constexpr int slideIn = 450; // milliseconds, and a little more
    return {{{}, [] {}}, {u"wheel-editor"_s, [this] { Finger::tap(m_level); }, slideIn}};
}
