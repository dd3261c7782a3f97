#pragma once

#include <QString>
#include <QStringList>

#include "VexExport.h"

/**
 * The texts of the library, and of the toolkit below it, in the language of the user.
 *
 * The texts in the sources are English; a language that has no translation shows them. An
 * application installs the translation of its own texts beside this one. GUI thread.
 */
class VEX_EXPORT VexTranslation
{
public:
    /** The languages that the library speaks: "en" first, then as in a locale's name ("pt_BR"). */
    static QStringList languages();
    /** What a language calls itself. */
    static QString nativeName(const QString &language);

    /**
     * Shows all texts in @p language from now on, in open windows too: each widget gets a
     * QEvent::LanguageChange. A language with a country ("de_AT") falls back to the one without.
     * Languages that are written from right to left mirror the layout of the application.
     *
     * @return whether the library has that language; otherwise its texts are English.
     */
    static bool install(const QString &language);
    /** What was installed last; "en" before. */
    static QString installed();
};
