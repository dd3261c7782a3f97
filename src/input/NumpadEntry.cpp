#include "NumpadEntry.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar Dot = u'\u25cf';

QString cleaned(const QString &text)
{
    QString clean;
    for (const QChar character : text) {
        if (character == u',') {
            clean += u'.';
        } else if (character == u'\u2212') {
            clean += u'-';
        } else if (character.isPrint() && !character.isSpace()) {
            clean += character.toUpper();
        }
    }
    if (clean.startsWith(u'+')) {
        clean.remove(0, 1);
    }
    return clean;
}

QString printable(QString text)
{
    return text.removeIf([](QChar character) { return !character.isPrint(); });
}

bool isNavigation(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End;
}

/// What belongs to the dialog or the focus.
bool isForOthers(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return event.modifiers().testFlag(Qt::AltModifier);
    }
}

} // namespace

NumpadEntry::NumpadEntry(bool isSecret, QWidget *parent)
    : QLineEdit(parent)
    , m_isSecret(isSecret)
{
    setObjectName(u"NumpadEntry"_s);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    setDragEnabled(false);
    if (m_isSecret) {
        setMaxLength(SecretText::Capacity);
        setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    } else {
        connect(this, &QLineEdit::textChanged, this, &NumpadEntry::edited);
    }
}

void NumpadEntry::begin(const QString &value, bool replace)
{
    eraseAll();
    if (m_isSecret) {
        return;
    }
    setText(value);
    if (replace) {
        selectAll();
    }
}

void NumpadEntry::type(const QString &text)
{
    if (m_isSecret) {
        typeSecret(printable(text));
    } else if (text == u"-" || text == u"\u2212") {
        toggleSign();
    } else if (text == u"+") {
        if (this->text().startsWith(u'-')) {
            toggleSign();
        }
    } else {
        insert(cleaned(text));
    }
}

void NumpadEntry::toggleSign()
{
    if (m_isSecret) {
        return;
    }
    if (hasSelectedText()) {
        insert(u"-"_s);
        return;
    }
    const bool isNegative = text().startsWith(u'-');
    const int cursor = cursorPosition();
    setText(isNegative ? text().sliced(1) : u'-' + text());
    setCursorPosition(qMax(0, cursor + (isNegative ? -1 : 1)));
}

void NumpadEntry::eraseBefore()
{
    if (!m_isSecret) {
        backspace();
    } else if (hasSelectedText()) {
        eraseSecret(selectionStart());
    } else {
        eraseSecret(cursorPosition() - 1);
    }
}

void NumpadEntry::eraseAll()
{
    if (!m_isSecret) {
        clear();
        return;
    }
    m_secret.clear();
    showSecret(0);
}

void NumpadEntry::replaceAll(const QString &text)
{
    eraseAll();
    if (m_isSecret) {
        typeSecret(text);
    } else {
        setText(text);
    }
}

QString NumpadEntry::entry() const
{
    return m_isSecret ? m_secret.toString() : text();
}

void NumpadEntry::setSecretShown(bool shown)
{
    m_isSecretShown = shown;
    if (m_isSecret) {
        showSecret(cursorPosition());
    }
}

bool NumpadEntry::take(QKeyEvent *event)
{
    if (isForOthers(*event)) {
        return false;
    }
    if (event->matches(QKeySequence::Paste)) {
        type(QGuiApplication::clipboard()->text());
        return true;
    }
    const bool isCommand = event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::MetaModifier);
    const QString text = event->text();
    if (!isCommand && !text.isEmpty() && text.front().isPrint()) {
        return takeText(text);
    }
    if (m_isSecret) {
        return takeInSecret(event);
    }
    event->accept();
    QLineEdit::keyPressEvent(event);
    return event->isAccepted();
}

bool NumpadEntry::takeText(const QString &text)
{
    const QString prefix = text == u"u" || text == u"\u03bc" ? u"\u00b5"_s : text;
    if (m_unitPrefixes.contains(prefix)) {
        Q_EMIT unitTyped(prefix);
    } else {
        type(text);
    }
    return true;
}

/// Only what is harmless reaches the line edit: it could copy, cut or undo the text.
bool NumpadEntry::takeInSecret(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Backspace) {
        eraseBefore();
    } else if (event->key() == Qt::Key_Delete) {
        eraseSecret(hasSelectedText() ? selectionStart() : cursorPosition());
    } else if (isNavigation(event->key())) {
        QLineEdit::keyPressEvent(event);
    } else {
        return false;
    }
    return true;
}

void NumpadEntry::typeSecret(const QString &text)
{
    if (hasSelectedText()) {
        eraseSecret(selectionStart());
    }
    const int cursor = cursorPosition();
    if (m_secret.insert(cursor, text)) {
        showSecret(cursor + int(text.size()));
    }
}

/// Erases the selection, or the one character at @p at.
void NumpadEntry::eraseSecret(int at)
{
    const int count = hasSelectedText() ? selectionLength() : 1;
    if (at < 0 || at + count > m_secret.size()) {
        return;
    }
    m_secret.remove(at, count);
    showSecret(at);
}

void NumpadEntry::showSecret(int cursor)
{
    setText(m_isSecretShown ? m_secret.toString() : QString(m_secret.size(), Dot));
    setCursorPosition(cursor);
    Q_EMIT edited();
}

void NumpadEntry::keyPressEvent(QKeyEvent *event)
{
    if (take(event)) {
        event->accept();
    } else {
        event->ignore();
    }
}

void NumpadEntry::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty()) {
        type(event->commitString());
    }
    event->accept();
}

/// The middle button would paste unseen.
void NumpadEntry::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        QLineEdit::mousePressEvent(event);
    }
}

void NumpadEntry::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        QLineEdit::mouseReleaseEvent(event);
    }
}
