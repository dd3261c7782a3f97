#include "PseudoLocale.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocumentFragment>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Longer by a third, as German and Russian often are.
QString pseudo(const QString &text)
{
    static const QHash<QChar, QChar> accents {
        {u'a', u'á'}, {u'e', u'é'}, {u'i', u'í'}, {u'o', u'ö'}, {u'u', u'ü'}, {u'c', u'ç'},
        {u'n', u'ñ'}, {u's', u'š'}, {u'A', u'Å'}, {u'E', u'É'}, {u'O', u'Ø'}, {u'U', u'Û'}};
    QString result;
    bool inMarkup = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        inMarkup = (inMarkup || c == u'<') && c != u'>';
        const bool isArgument = i > 0 && (text[i - 1] == u'%' || text[i - 1] == u'&');
        result += inMarkup || isArgument ? c : accents.value(c, c);
    }
    return u'[' + result + QString(text.size() / 3, u'·') + u']';
}

bool hasLetter(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

struct Shown
{
    const QWidget *widget;
    QString text;
};

QString plain(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// The texts of the widget itself, as far as they are the program's and not the user's.
QStringList textsOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return {plain(label->text())};
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return {button->text()};
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        return {edit->placeholderText()};
    }
    return {};
}

QList<Shown> shownTexts(const QWidget *window)
{
    QList<Shown> shown;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(window)) {
            continue;
        }
        for (const QString &text : textsOf(widget)) {
            if (hasLetter(text)) {
                shown.append({widget, text});
            }
        }
    }
    return shown;
}

QString described(const Shown &shown)
{
    return u"%1 (%2): %3"_s.arg(shown.widget->objectName(),
                                QLatin1StringView(shown.widget->metaObject()->className()),
                                shown.text);
}

int widthNeeded(const Shown &shown)
{
    const bool isEdit = qobject_cast<const QLineEdit *>(shown.widget) != nullptr;
    return isEdit ? shown.widget->fontMetrics().horizontalAdvance(shown.text)
                  : shown.widget->sizeHint().width();
}

bool canBeTouched(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget)
        || qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
        || qobject_cast<const QAbstractSlider *>(widget);
}

} // namespace

PseudoLocale::PseudoLocale()
{
    QCoreApplication::installTranslator(this);
}

PseudoLocale::~PseudoLocale()
{
    QCoreApplication::removeTranslator(this);
}

QString PseudoLocale::translate(const char * /*context*/, const char *sourceText,
                                const char * /*disambiguation*/, int /*n*/) const
{
    return pseudo(QString::fromUtf8(sourceText));
}

QStringList PseudoLocale::untranslated(const QWidget *window)
{
    QStringList found;
    for (const Shown &shown : shownTexts(window)) {
        if (!shown.text.contains(u'[')) {
            found.append(described(shown));
        }
    }
    return found;
}

QStringList PseudoLocale::clipped(const QWidget *window)
{
    QStringList found;
    for (const Shown &shown : shownTexts(window)) {
        const auto *label = qobject_cast<const QLabel *>(shown.widget);
        if (label != nullptr && label->wordWrap()) {
            if (label->height() < label->heightForWidth(label->width())) {
                found.append(described(shown));
            }
        } else if (!shown.text.contains(u'…') && shown.widget->width() < widthNeeded(shown)) {
            found.append(described(shown));
        }
    }
    return found;
}

QStringList PseudoLocale::nameless(const QWidget *window)
{
    QStringList found;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const bool named =
            !widget->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty());
        // The parts of a combo box or a scroll bar speak through it.
        const bool isPart = widget->objectName().startsWith(u"qt_"_s);
        if (canBeTouched(widget) && widget->isVisibleTo(window) && !named && !isPart) {
            found.append(described({widget, {}}));
        }
    }
    return found;
}
