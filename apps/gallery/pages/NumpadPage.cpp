#include "NumpadPage.h"

#include "../Controls.h"
#include "../Finger.h"
#include "../Look.h"

#include <QMetaEnum>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

NumpadPage::NumpadPage()
    : Page(u"numpad"_s, tr("QvexNumpadDlg"), tr("A keypad for numbers, beside their field."))
{
}

QWidget *NumpadPage::recipe(QWidget *parent)
{
    m_field = Look::target(u"12.345"_s, parent);
    m_numpad = new QvexNumpadDlg(m_field);
    m_numpad->setWindowTitle(tr("Amplitude"));
    m_numpad->setDecimals(3);
    m_numpad->setMinimum(-10.0);
    m_numpad->setMaximum(50.5);
    m_numpad->setDefault_(1.0);
    m_numpad->setStep(0.005);
    m_numpad->setValue(12.345);
    connect(m_field, &QPushButton::clicked, m_numpad, &QvexDialog::open);
    connect(m_numpad, &QDialog::finished, this, [this](int result) {
        note(u"finished"_s, result);
        m_field->setText(m_numpad->text());
    });
    return m_field;
}

QWidget *NumpadPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addSwitch(tr("Units"), [this](bool on) {
        m_numpad->setUnitKeys(u"V"_s, on ? QStringList {u"m"_s, QString(), u"k"_s} : QStringList());
    });
    using Type = QvexNumpadDlg::Inp_Type;
    controls->addButton(tr("Hexadecimal"), [this] { openRadix(Type::Hexadecimal); });
    controls->addButton(tr("Binary"), [this] { openRadix(Type::Binary); });
    controls->addButton(tr("PAM4"), [this] { openRadix(Type::CodingPAM4); });
    return controls;
}

void NumpadPage::openRadix(QvexNumpadDlg::Inp_Type type)
{
    auto *numpad = new QvexNumpadDlg(m_field, type);
    numpad->setMaximum(quint64(0xffff));
    numpad->setValue(quint64(0x1a2b));
    connect(numpad, &QDialog::finished, numpad, &QObject::deleteLater);
    connect(numpad, &QDialog::finished, this,
            [this, numpad](int result) { note(u"finished"_s, result, numpad->text()); });
    numpad->open();
}

/// Taps keys by their names, after the dialog was opened.
void NumpadPage::type(const QString &keys)
{
    for (const QString &key : keys.split(u' ')) {
        Finger::tap(m_numpad->findChild<QWidget *>(u"NumpadKey_"_s + key));
    }
}

QVector<Page::Scene> NumpadPage::scenes()
{
    QVector<Scene> scenes {{{}, [] {}}, {u"open"_s, [this] { m_field->click(); }}};
    for (const auto &[name, keys] :
         {std::pair(u"valid"_s, u"7 Point 5"_s), std::pair(u"unfinished"_s, u"Sign"_s),
          std::pair(u"refused"_s, u"9 9"_s)}) {
        scenes.append({name, [this, taps = keys] {
                           m_field->click();
                           type(taps);
                       }});
    }
    const auto types = QMetaEnum::fromType<QvexNumpadDlg::Inp_Type>();
    using Type = QvexNumpadDlg::Inp_Type;
    for (const Type type : {Type::Hexadecimal, Type::Binary, Type::Base4, Type::CodingPAM4}) {
        scenes.append({QString::fromLatin1(types.valueToKey(type)).toLower(),
                       [this, type] { openRadix(type); }});
    }
    scenes.append({u"units"_s, [this] {
                       m_numpad->setUnitKeys(u"V"_s, {u"m"_s, QString(), u"k"_s});
                       m_field->click();
                       type(u"5 0 0"_s);
                   }});
    return scenes;
}
