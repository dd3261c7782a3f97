#include "Language.h"

#include <QCoreApplication>
#include <QLocale>

#include <frame/VexTranslation.h>

using namespace Qt::StringLiterals;

QStringList Language::all()
{
    return VexTranslation::languages();
}

QString Language::name(const QString &language)
{
    return VexTranslation::nativeName(language);
}

void Language::apply(const QString &language)
{
    // Loading does not install it, and a language without a file of ours shows English.
    QCoreApplication::removeTranslator(&m_ownTexts);
    if (m_ownTexts.load(QLocale(language), u"levelmeter"_s, u"_"_s, u":/i18n"_s)) {
        QCoreApplication::installTranslator(&m_ownTexts);
    }
    VexTranslation::install(language);
}
