#include "VexTranslation.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Language
{
    QLatin1StringView code;
    QStringView nativeName; ///< QLocale adds the country to some
};

constexpr std::array<Language, 10> Languages {{{"en"_L1, u"English"},
                                               {"de"_L1, u"Deutsch"},
                                               {"es"_L1, u"Español"},
                                               {"fr"_L1, u"Français"},
                                               {"it"_L1, u"Italiano"},
                                               {"ja"_L1, u"日本語"},
                                               {"ko"_L1, u"한국어"},
                                               {"pt_BR"_L1, u"Português (Brasil)"},
                                               {"ru"_L1, u"Русский"},
                                               {"zh_CN"_L1, u"简体中文"}}};

struct Installed
{
    QString language = u"en"_s;
    std::unique_ptr<QTranslator> toolkit;
    std::unique_ptr<QTranslator> library;
};

Installed &current()
{
    static Installed installed;
    return installed;
}

/// Null when there is no such translation.
std::unique_ptr<QTranslator> loaded(const QLocale &locale, const QString &file,
                                    const QString &directory)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, file, u"_"_s, directory)) {
        return nullptr;
    }
    return translator;
}

/// The toolkit tells every widget of the change in either step.
void replace(std::unique_ptr<QTranslator> &translator, std::unique_ptr<QTranslator> next)
{
    if (translator) {
        QCoreApplication::removeTranslator(translator.get());
    }
    translator = std::move(next);
    if (translator) {
        QCoreApplication::installTranslator(translator.get());
    }
}

/// The library's language for @p language, or for what it is without its country; null if none.
const Language *find(const QString &language)
{
    const auto isOf = [&](const Language &known) {
        return language == known.code || language.section(u'_', 0, 0) == known.code;
    };
    const auto found = std::find_if(Languages.begin(), Languages.end(), isOf);
    return found == Languages.end() ? nullptr : found;
}

} // namespace

QStringList VexTranslation::languages()
{
    QStringList names;
    for (const Language &language : Languages) {
        names.append(language.code);
    }
    return names;
}

QString VexTranslation::nativeName(const QString &language)
{
    const Language *known = find(language);
    return known != nullptr ? known->nativeName.toString() : QLocale(language).nativeLanguageName();
}

bool VexTranslation::install(const QString &language)
{
    Installed &installed = current();
    const QLocale locale(language);
    installed.language = language;
    replace(installed.toolkit,
            loaded(locale, u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    replace(installed.library, loaded(locale, u"vexclient"_s, u":/i18n"_s));
    QGuiApplication::setLayoutDirection(locale.textDirection());
    return find(language) != nullptr;
}

QString VexTranslation::installed()
{
    return current().language;
}
