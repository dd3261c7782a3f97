#include "NumpadPanel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "NumpadEntry.h"
#include "NumpadStyle.h"
#include "TickBox.h"

using namespace Qt::StringLiterals;
using Verdict = NumericField::Verdict;

namespace {

constexpr int Spacing = 8;
constexpr int MarkSize = 24;
constexpr int LowSpacing = 4;
constexpr int ReasonHeight = 40; // two lines
constexpr int LowReasonHeight = 20;
constexpr int Margin = 4;
/// As many are seen in an ordinary entry, in its ordinary type.
constexpr int EntryDigits = 22;
/// Of the entry for more digits; as wide as a keypad that fits beside a field.
constexpr int LongEntryWidth = 496;

/// As many digits as possible are seen at once.
int fontSizeFor(qsizetype digits)
{
    return digits <= EntryDigits ? 28 : digits <= 34 ? 20 : digits <= 48 ? 14 : 12;
}

/// Numbers of many binary digits are shown by their ends.
QString shortened(const QString &number)
{
    constexpr qsizetype longest = 24;
    constexpr qsizetype end = 6;
    if (number.size() <= longest) {
        return number;
    }
    return number.first(end) + u'\u2026' + number.last(end);
}

QLabel *makeLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    // A long text must not make the dialog wider.
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    label->setWordWrap(true);
    label->setSizePolicy(policy);
    return label;
}

} // namespace

NumpadPanel::NumpadPanel(NumericField::Notation notation, QWidget *parent)
    : QWidget(parent)
    , m_isSecret(notation == NumericField::Password)
{
    setObjectName(u"NumpadPanel"_s);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, 0, Margin, Margin);
    column->setSpacing(Spacing);
    addEntry(column);
    addVerdict(column);
    if (m_isSecret) {
        addCheckBoxes(column);
    }
    m_keys = new NumpadKeys(notation, this);
    column->addWidget(m_keys, 1);
    addButtons(column);
    updateTexts();
    updateStyle();
    setFocusProxy(m_entry);
}

void NumpadPanel::addEntry(QVBoxLayout *column)
{
    m_oldValue = makeLabel(u"NumpadOldValue"_s, this);
    m_oldValue->setVisible(!m_isSecret);
    m_entry = new NumpadEntry(m_isSecret, this);
    m_entry->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    column->addWidget(m_oldValue);
    column->addWidget(m_entry);
}

void NumpadPanel::addVerdict(QVBoxLayout *column)
{
    m_mark = makeLabel(u"NumpadMark"_s, this);
    m_mark->setWordWrap(false);
    m_mark->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_mark->setFixedSize(MarkSize, MarkSize);
    m_mark->setAlignment(Qt::AlignCenter);
    m_reason = makeLabel(u"NumpadReason"_s, this);
    m_reason->setFixedHeight(ReasonHeight);
    m_range = makeLabel(u"NumpadRange"_s, this);
    m_mark->hide();
    if (m_isSecret) {
        m_reason->hide();
        m_range->hide();
        return;
    }
    auto *row = new QHBoxLayout;
    row->setSpacing(Spacing);
    row->addWidget(m_mark);
    row->addWidget(m_reason, 1);
    column->addLayout(row);
    column->addWidget(m_range);
}

void NumpadPanel::addCheckBoxes(QVBoxLayout *column)
{
    m_tickBoxes = new QBoxLayout(QBoxLayout::TopToBottom);
    column->addLayout(m_tickBoxes);
    const auto add = [&](const QString &name) {
        auto *box = new TickBox(this);
        box->setObjectName(name);
        box->setFocusPolicy(Qt::TabFocus);
        m_tickBoxes->addWidget(box);
        return box;
    };
    m_displayPassword = add(u"DisplayPassword"_s);
    m_removeProtection = add(u"DisablePasswordProtection"_s);
    connect(m_displayPassword, &TickBox::toggled, m_entry, &NumpadEntry::setSecretShown);
}

QPushButton *NumpadPanel::makeButton(const QString &name)
{
    auto *button = new QPushButton(this);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::TabFocus);
    button->setMinimumSize(NumpadKeys::KeyWidth, NumpadKeys::KeyHeight);
    return button;
}

void NumpadPanel::addButtons(QVBoxLayout *column)
{
    m_digitsButton = makeButton(u"NumpadEditDigits"_s);
    m_cancelButton = makeButton(u"NumpadCancel"_s);
    m_okButton = makeButton(u"NumpadOk"_s);
    m_digitsButton->hide();
    auto *row = new QHBoxLayout;
    row->setSpacing(Spacing);
    for (QPushButton *button : {m_digitsButton, m_cancelButton, m_okButton}) {
        row->addWidget(button, 1);
    }
    column->addLayout(row);
}

void NumpadPanel::setLow(bool low)
{
    layout()->setSpacing(low ? LowSpacing : Spacing);
    m_reason->setFixedHeight(low ? LowReasonHeight : ReasonHeight);
    m_keys->setLow(low);
    if (m_tickBoxes != nullptr) {
        m_tickBoxes->setDirection(low ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    }
    for (QPushButton *button : {m_digitsButton, m_cancelButton, m_okButton}) {
        button->setMinimumHeight(low ? NumpadKeys::LowKeyHeight : NumpadKeys::KeyHeight);
    }
}

void NumpadPanel::showField(const NumericField &field, const QString &unit)
{
    const auto withUnit = [&](DecimalNumber number) {
        const QString text = shortened(field.textOf(number));
        return unit.isEmpty() ? text : text + u' ' + unit;
    };
    const QString minimum = withUnit(field.minimum());
    const QString maximum = withUnit(field.maximum());
    m_oldValue->setText(tr("Value: %1").arg(withUnit(field.value())));
    QString range = tr("Range: %1 to %2").arg(minimum, maximum);
    if (field.step() != DecimalNumber()) {
        range += u'\n' + tr("Step: %1").arg(withUnit(field.step()));
    }
    m_range->setText(range);
    m_keys->setDescription(NumpadKeys::Minimum, minimum);
    m_keys->setDescription(NumpadKeys::Maximum, maximum);
    m_keys->setDescription(NumpadKeys::Default, withUnit(field.defaultValue()));
    m_entry->setMinimumWidth(field.digits() <= EntryDigits ? 0 : LongEntryWidth);
}

void NumpadPanel::showVerdict(const Verdict &verdict)
{
    m_okButton->setEnabled(verdict.state == Verdict::Valid);
    m_reason->setText(verdict.reason);
    m_entry->setAccessibleDescription(verdict.reason);
    m_mark->setVisible(verdict.state != Verdict::Valid);
    m_mark->setText(verdict.state == Verdict::Refused ? u"\u2715"_s : u"\u2026"_s);
    if (verdict.state != m_shownState) {
        m_shownState = verdict.state;
        m_mark->setStyleSheet(NumpadStyle::mark(m_shownState));
    }
    styleEntry();
}

void NumpadPanel::styleEntry()
{
    const QString style =
        NumpadStyle::entry(palette(), m_shownState, fontSizeFor(m_entry->text().size()));
    if (style != m_entry->styleSheet()) {
        m_entry->setStyleSheet(style);
    }
}

void NumpadPanel::updateTexts()
{
    m_keys->updateTexts();
    m_entry->setAccessibleName(m_isSecret ? tr("Password") : tr("Entry"));
    const auto setText = [](QAbstractButton *button, const QString &text) {
        if (button) {
            button->setText(text);
            button->setAccessibleName(text);
        }
    };
    setText(m_okButton, tr("OK"));
    setText(m_cancelButton, tr("Cancel"));
    setText(m_digitsButton, tr("Edit digits"));
    setText(m_displayPassword, tr("Display password"));
    setText(m_removeProtection, tr("Disable password protection"));
}

void NumpadPanel::updateStyle()
{
    const QString style = NumpadStyle::panel(palette());
    if (style == styleSheet()) {
        return;
    }
    setStyleSheet(style);
    styleEntry();
    // What is not polished yet has another size.
    const auto parts = findChildren<QWidget *>();
    for (QWidget *part : parts) {
        part->ensurePolished();
    }
}
