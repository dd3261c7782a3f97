#include "SetupPage.h"

#include "ChoiceDialog.h"
#include "Language.h"
#include "Look.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScroller>

#include <input/QLineEditBin.h>
#include <input/QLineEditCodingPAM4.h>
#include <input/QLineEditHex.h>
#include <input/QLineEditNumber.h>

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 widestPattern = 0xFFFFFFFF;
constexpr int fieldWidth = 220;

/// "⁻⁶" for -6
QString superscript(double number)
{
    static const QString digits = u"⁰¹²³⁴⁵⁶⁷⁸⁹"_s;
    QString raised;
    for (const QChar sign : QString::number(qRound(number))) {
        raised += sign == u'-' ? QChar(u'⁻') : digits[sign.digitValue()];
    }
    return raised;
}

} // namespace

SetupPage::SetupPage(Settings &settings, QWidget *parent)
    : QWidget(parent)
    , m_settings(settings)
{
    setObjectName(u"SetupPage"_s);
    setAutoFillBackground(true);
    m_fields = new QWidget(this);
    m_columns = new QHBoxLayout(m_fields);
    m_columns->setContentsMargins(0, 0, 0, 0);
    m_columns->setSpacing(48);
    m_columns->addWidget(makeFields());
    m_columns->addWidget(makePatterns(), 1);
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(m_fields);
    QScroller::grabGesture(area->viewport(), QScroller::TouchGesture);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 60, 40);
    layout->addWidget(area, 1);
    layout->addWidget(makeButtons());
    connect(&m_settings, &Settings::changed, this, &SetupPage::showProperty);
    showAll();
    retranslate();
}

QWidget *SetupPage::makeFields()
{
    auto *box = new QWidget(m_fields);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(Look::spacing);
    grid->setHorizontalSpacing(Look::spacing);
    m_numbersHeading = Look::heading(box);
    m_numbersHeading->setObjectName(u"NumbersHeading"_s);
    grid->addWidget(m_numbersHeading, 0, 0, 1, 3);
    for (const Settings::Number &number : Settings::numbers()) {
        addNumber(grid, number.id);
    }
    m_testName = new QLabel(box);
    m_test = Look::button(u"TestName"_s, box);
    connect(m_test, &QPushButton::clicked, this, &SetupPage::chooseTest);
    const int row = grid->rowCount();
    grid->addWidget(m_testName, row, 0);
    grid->addWidget(m_test, row, 1);
    grid->setRowStretch(row + 1, 1);
    return box;
}

void SetupPage::addNumber(QGridLayout *grid, Settings::Id id)
{
    const Settings::Number &number = Settings::number(id);
    const NumberRow row {id, new QLabel(this), new QLineEditNumber(this), new QLabel(this)};
    row.field->setObjectName(QString::fromLatin1(number.tag));
    row.field->setFixedSize(fieldWidth, Look::fingerSize);
    row.field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.field->setDecimals(number.decimals);
    row.field->setMinimum(number.minimum);
    row.field->setMaximum(number.maximum);
    row.field->setDefault_(number.standard);
    connect(row.field, &QLineEditNumber::valueChanged, this,
            [this, row] { m_settings.setValue(row.id, row.field->value()); });
    const int line = grid->rowCount();
    grid->addWidget(row.name, line, 0);
    grid->addWidget(row.field, line, 1);
    grid->addWidget(row.unit, line, 2);
    m_numbers.append(row);
}

QWidget *SetupPage::makePatterns()
{
    auto *box = new QWidget(m_fields);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(Look::spacing);
    grid->setHorizontalSpacing(Look::spacing);
    m_patternHeading = Look::heading(box);
    grid->addWidget(m_patternHeading, 0, 0, 1, 2);
    addPattern(grid, new QLineEditHex(box), u"PatternHex"_s);
    addPattern(grid, new QLineEditBin(box), u"PatternBin"_s);
    addPattern(grid, new QLineEditCodingPAM4(box), u"PatternPam4"_s);
    m_patternHint = new QLabel(box);
    m_patternHint->setWordWrap(true);
    m_lockedHint = new QLabel(box);
    m_lockedHint->setObjectName(u"LockedHint"_s);
    m_lockedHint->setWordWrap(true);
    m_lockedHint->setFont(Look::scaled(m_lockedHint->font(), 1.1, true));
    m_lockedHint->hide();
    grid->addWidget(m_patternHint, 4, 0, 1, 2);
    grid->addWidget(m_lockedHint, 5, 0, 1, 2);
    grid->setRowStretch(6, 1);
    grid->setColumnStretch(1, 1);
    return box;
}

void SetupPage::addPattern(QGridLayout *grid, QLineEditRadix *field, const QString &objectName)
{
    const PatternRow row {new QLabel(this), field};
    field->setObjectName(objectName);
    field->setMinimumHeight(Look::fingerSize);
    field->setMaximum(widestPattern);
    field->setPreserveText(true);
    connect(field, &QLineEdit::textChanged, this,
            [this, field] { m_settings.setPattern(field->value()); });
    const int line = grid->rowCount();
    grid->addWidget(row.name, line, 0);
    grid->addWidget(field, line, 1);
    m_patterns.append(row);
}

QWidget *SetupPage::makeButtons()
{
    auto *bar = new QWidget(this);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::spacing);
    m_language = Look::button(u"Language"_s, bar);
    m_theme = Look::button(u"Theme"_s, bar);
    m_help = Look::button(u"Help"_s, bar);
    m_standard = Look::button(u"Standard"_s, bar);
    m_start = Look::mainButton(u"SetupStart"_s, bar);
    for (QPushButton *button : {m_language, m_theme, m_help, m_standard}) {
        button->setMinimumWidth(96);
        button->setMaximumWidth(180);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        layout->addWidget(button, 2);
    }
    layout->addStretch(1);
    layout->addWidget(m_start);
    connect(m_language, &QPushButton::clicked, this, &SetupPage::chooseLanguage);
    connect(m_theme, &QPushButton::clicked, this, &SetupPage::switchTheme);
    connect(m_help, &QPushButton::clicked, this, &SetupPage::helpWanted);
    connect(m_standard, &QPushButton::clicked, &m_settings, &Settings::restoreStandard);
    connect(m_start, &QPushButton::clicked, this, &SetupPage::startWanted);
    return bar;
}

void SetupPage::setTests(const QStringList &names)
{
    m_tests = names;
}

void SetupPage::setLocked(bool locked)
{
    m_fields->setEnabled(!locked);
    m_standard->setEnabled(!locked);
    m_start->setEnabled(!locked);
    m_lockedHint->setVisible(locked);
}

void SetupPage::showAll()
{
    for (const NumberRow &row : m_numbers) {
        showProperty(row.id);
    }
    for (const long id :
         {Settings::Pattern, Settings::TestName, Settings::Language, Settings::Theme}) {
        showProperty(id);
    }
}

void SetupPage::showProperty(long id)
{
    if (id == Settings::Pattern) {
        for (const PatternRow &row : m_patterns) {
            row.field->setValue(m_settings.pattern());
        }
    } else if (id == Settings::TestName) {
        m_test->setText(m_settings.text(Settings::TestName));
    } else if (id == Settings::Language || id == Settings::Theme) {
        retranslate();
    }
    for (const NumberRow &row : m_numbers) {
        // Not when it is the field that has set it: its editor would lose its place.
        if (row.id == id
            && (row.field->text().isEmpty() || row.field->value() != m_settings.value(row.id))) {
            row.field->setValue(m_settings.value(row.id));
        }
    }
    if (id == Settings::RatioExponent) {
        retranslate();
    }
}

void SetupPage::chooseTest()
{
    if (m_tests.isEmpty()) {
        m_tests = QStringList {m_settings.text(Settings::TestName)};
    }
    const int chosen = ChoiceDialog::choose(
        this, tr("Test at the instrument"), m_tests,
        static_cast<int>(m_tests.indexOf(m_settings.text(Settings::TestName))));
    if (chosen >= 0) {
        m_settings.setText(Settings::TestName, m_tests[chosen]);
    }
}

void SetupPage::chooseLanguage()
{
    const QStringList languages = Language::all();
    QStringList names;
    for (const QString &language : languages) {
        names += Language::name(language);
    }
    const auto current = languages.indexOf(m_settings.text(Settings::Language));
    const int chosen = ChoiceDialog::choose(this, tr("Language"), names, static_cast<int>(current));
    if (chosen >= 0) {
        m_settings.setText(Settings::Language, languages[chosen]);
    }
}

void SetupPage::switchTheme()
{
    const bool isDark = m_settings.text(Settings::Theme) == u"dark"_s;
    m_settings.setText(Settings::Theme, isDark ? u"light"_s : u"dark"_s);
}

void SetupPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

/// One column below the other where there is no room beside it.
void SetupPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_columns->setDirection(width() < Look::compactWidth ? QBoxLayout::TopToBottom
                                                         : QBoxLayout::LeftToRight);
}

void SetupPage::retranslate()
{
    m_numbersHeading->setText(tr("What is measured, and its limits"));
    for (const NumberRow &row : m_numbers) {
        retranslateRow(row);
    }
    m_testName->setText(tr("Test at the instrument"));
    m_test->setAccessibleName(m_testName->text());
    m_patternHeading->setText(tr("Pattern that is sent, 32 bits"));
    const QString codings[] = {tr("Hexadecimal"), tr("Binary"), tr("PAM4 symbols")};
    for (int i = 0; i < m_patterns.size(); ++i) {
        m_patterns[i].name->setText(codings[i]);
        m_patterns[i].field->setWindowTitle(codings[i]);
    }
    m_patternHint->setText(tr("The three fields show the same pattern: each follows the others."));
    m_lockedHint->setText(tr("A run is under way. It can be stopped in the test window."));
    m_language->setText(Language::name(m_settings.text(Settings::Language)));
    m_language->setAccessibleName(tr("Language"));
    m_theme->setText(m_settings.text(Settings::Theme) == u"dark"_s ? tr("Light colours")
                                                                   : tr("Dark colours"));
    m_help->setText(tr("Help"));
    m_standard->setText(tr("Standard values"));
    m_start->setText(tr("Start the test"));
}

void SetupPage::retranslateRow(const NumberRow &row)
{
    const auto set = [&row](const QString &name, const QString &unit) {
        row.name->setText(name);
        row.unit->setText(unit);
        row.field->setTitle(unit.isEmpty() ? name : tr("%1 in %2").arg(name, unit));
    };
    switch (row.id) {
    case Settings::Frequency:
        return set(tr("Optical frequency"), u"THz"_s);
    case Settings::BitRate:
        return set(tr("Bit rate"), u"Gbit/s"_s);
    case Settings::Threshold:
        return set(tr("Lowest level"), u"dBm"_s);
    case Settings::Duration:
        return set(tr("Duration"), u"s"_s);
    case Settings::SampleRate:
        return set(tr("Samples per second"), {});
    default:
        set(tr("Error ratio limit, power of 10"), {});
        return row.unit->setText(u"10"_s + superscript(m_settings.value(row.id)));
    }
}
