#include "VexTranslation.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <array>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<QLatin1StringView, 10> Languages {
    "en"_L1, "de"_L1, "es"_L1, "fr"_L1, "it"_L1, "ja"_L1, "ko"_L1, "pt_BR"_L1, "ru"_L1, "zh_CN"_L1};

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

bool isKnown(const QString &language)
{
    const auto matches = [&](QLatin1StringView known) {
        return language == known || language.section(u'_', 0, 0) == known;
    };
    return std::any_of(Languages.begin(), Languages.end(), matches);
}

} // namespace

QStringList VexTranslation::languages()
{
    QStringList names;
    for (const QLatin1StringView language : Languages) {
        names.append(language);
    }
    return names;
}

QString VexTranslation::nativeName(const QString &language)
{
    const QLocale locale(language);
    const QString name = locale.nativeLanguageName();
    // English and some others write the names of languages with a capital, menus all do.
    return locale.toUpper(name.left(1)) + name.mid(1);
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
    return isKnown(language);
}

QString VexTranslation::installed()
{
    return current().language;
}
