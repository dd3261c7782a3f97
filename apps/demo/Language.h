#pragma once

#include <QTranslator>

/**
 * The language of all texts: those of the library, which VexTranslation installs, and this
 * application's own, which are resources "levelmeter_xx.qm" beside the library's.
 */
class Language
{
public:
    /// Names of languages as in "de" or "pt_BR", English first.
    static QStringList all();
    /// What a language calls itself.
    static QString name(const QString &language);

    /// Every widget gets a QEvent::LanguageChange.
    void apply(const QString &language);

private:
    QTranslator m_ownTexts;
};
