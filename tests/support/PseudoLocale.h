#pragma once

#include <QStringList>
#include <QTranslator>

class QWidget;

/**
 * A language that nobody speaks: every text gets accents, grows by a third and stands in brackets.
 * What is seen without brackets was never given to tr(); what does not fit would not fit in German
 * either. Installed for as long as it exists.
 */
class PseudoLocale : public QTranslator
{
public:
    PseudoLocale();
    ~PseudoLocale() override;

    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }

    /** The texts that @p window shows without brackets, but for those without a letter. */
    static QStringList untranslated(const QWidget *window);
    /** The texts that have less room than they need and are not elided, with their widgets. */
    static QStringList clipped(const QWidget *window);
    /** What can be touched and has neither a text nor an accessible name. */
    static QStringList nameless(const QWidget *window);
};
