#pragma once

#include <QVector>
#include <QWidget>

#include "Settings.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEditNumber;
class QLineEditRadix;
class QPushButton;

/**
 * The setup window: the settings of the runs to come. Whatever is set here is a property at once,
 * and whatever sets a property is seen here at once, so the two never differ.
 */
class SetupPage : public QWidget
{
    Q_OBJECT

public:
    /// @p settings is not owned and must outlive the page.
    explicit SetupPage(Settings &settings, QWidget *parent = nullptr);

    /// The tests that the instrument can launch.
    void setTests(const QStringList &names);
    /// While a run is under way its settings can be seen but not changed.
    void setLocked(bool locked);

Q_SIGNALS:
    void startWanted();
    void helpWanted();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct NumberRow
    {
        Settings::Id id;
        QLabel *name;
        QLineEditNumber *field;
        QLabel *unit;
    };
    struct PatternRow
    {
        QLabel *name;
        QLineEditRadix *field;
    };

    QWidget *makeFields();
    QWidget *makePatterns();
    QWidget *makeButtons();
    void addNumber(QGridLayout *grid, Settings::Id id);
    void addPattern(QGridLayout *grid, QLineEditRadix *field, const QString &objectName);
    void showProperty(long id);
    void showAll();
    void retranslate();
    void retranslateRow(const NumberRow &row);
    void chooseTest();
    void chooseLanguage();
    void switchTheme();

    Settings &m_settings;
    QStringList m_tests;
    QVector<NumberRow> m_numbers;
    QVector<PatternRow> m_patterns;
    QBoxLayout *m_columns;
    QWidget *m_fields; ///< all that a run locks
    QLabel *m_numbersHeading;
    QLabel *m_patternHeading;
    QLabel *m_patternHint;
    QLabel *m_testName;
    QLabel *m_lockedHint;
    QPushButton *m_test;
    QPushButton *m_standard;
    QPushButton *m_language;
    QPushButton *m_theme;
    QPushButton *m_help;
    QPushButton *m_start;
};
