#include "QvexPasswordPopup.h"

#include <QApplication>
#include <QEvent>
#include <QLoggingCategory>
#include <QPointer>
#include <QTimer>

#include <dialogs/QvexMessageBox.h>

#include "SecretText.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(lcPassword, "vex.input", QtInfoMsg)

constexpr auto Hysteresis = 800ms;
constexpr QStringView DefaultPassword = u"0000";

} // namespace

struct QvexPasswordPopup::Private
{
    explicit Private(QvexPasswordPopup *popup);

    SecretText password;
    SecretText localNormalPassword;
    int localPasswordLevel = 0;
    bool removeProtection = false;
    bool rcActive = false;
    bool inHysteresis = false;
    bool hysteresisReply = false;
    bool forcedRemoval = false;
    QTimer *hysteresisTimer;
};

QvexPasswordPopup::Private::Private(QvexPasswordPopup *popup)
    : hysteresisTimer(new QTimer(popup))
{
    hysteresisTimer->setObjectName(u"hysteresisTimer"_s);
    hysteresisTimer->setSingleShot(true);
    hysteresisTimer->setTimerType(Qt::PreciseTimer);
    hysteresisTimer->setInterval(Hysteresis);
    connect(hysteresisTimer, &QTimer::timeout, popup, &QvexPasswordPopup::hysteresisTrigged);
}

QvexPasswordPopup::QvexPasswordPopup(QWidget *parent, const char *name)
    : QvexNumpadDlg(parent, Password, name ? name : "QvexPasswordPopup")
    , d(std::make_unique<Private>(this))
{
    setLocalNormalPassword(DefaultPassword.toString());
    setWindowTitle(tr("Password Protection"));
}

QvexPasswordPopup::~QvexPasswordPopup() = default;

QvexPasswordPopup *QvexPasswordPopup::instance()
{
    static QPointer<QvexPasswordPopup> popup = [] {
        // Widgets must not outlive the application object.
        qAddPostRoutine([] { delete popup; });
        return new QvexPasswordPopup;
    }();
    return popup;
}

bool QvexPasswordPopup::testAndRemoveProtectionPopup(bool removeRequested, bool ignoreRemote)
{
    if (d->rcActive && !ignoreRemote) {
        return true;
    }
    if (d->localPasswordLevel == 0) {
        d->inHysteresis = false;
        return true;
    }
    if (d->inHysteresis && !removeRequested) {
        return d->hysteresisReply;
    }
    if (isRunning()) {
        return false;
    }
    if (parentApplication()) {
        return ask(removeRequested);
    }
    const QPointer<QvexPasswordPopup> guard(this);
    setParentApplication(QApplication::activeWindow());
    const bool mayGoOn = ask(removeRequested);
    if (guard) {
        setParentApplication(nullptr);
    }
    return mayGoOn;
}

bool QvexPasswordPopup::ask(bool removeRequested)
{
    if (removeRequested) {
        d->forcedRemoval = true;
        disablePasswordProtectionSetChecked(true);
        disablePasswordProtectionSetDisabled(true);
    }
    const QPointer<QvexPasswordPopup> guard(this);
    const bool isAccepted = exec() == Accepted;
    if (!guard) {
        return false;
    }
    d->forcedRemoval = false;
    return isAccepted ? judge(removeRequested) : refuse();
}

bool QvexPasswordPopup::refuse()
{
    d->hysteresisReply = false;
    hysteresisRetrig();
    return false;
}

/// Answers to a password that was entered.
bool QvexPasswordPopup::judge(bool removeRequested)
{
    if (!d->password.equals(d->localNormalPassword)) {
        const QPointer<QvexPasswordPopup> guard(this);
        QvexMessageBox::warning(this, tr("Password Protection"),
                                tr("Password Does Not Match.\nPlease Type Correct Password!"));
        return guard && refuse();
    }
    if (!removeRequested && !d->removeProtection) {
        d->hysteresisReply = true;
        hysteresisRetrig();
        return true;
    }
    const QPointer<QvexPasswordPopup> guard(this);
    Q_EMIT disableModProtection();
    if (guard) {
        d->localPasswordLevel = 0;
        d->inHysteresis = false;
    }
    return true;
}

void QvexPasswordPopup::hysteresisRetrig()
{
    d->hysteresisTimer->stop();
    d->inHysteresis = d->localPasswordLevel != 0;
    if (d->inHysteresis) {
        d->hysteresisTimer->start();
    }
}

void QvexPasswordPopup::hysteresisTrigged()
{
    d->inHysteresis = false;
}

QString QvexPasswordPopup::getPassword() const
{
    return d->password.toString();
}

bool QvexPasswordPopup::getRemoveProtection() const
{
    return d->removeProtection;
}

void QvexPasswordPopup::setLocalNormalPassword(const QString &password)
{
    if (!d->localNormalPassword.assign(password)) {
        qCWarning(lcPassword, "QvexPasswordPopup: a password of more than %d characters is refused",
                  int(SecretText::Capacity));
    }
}

void QvexPasswordPopup::setLocalPasswordLevel(int level)
{
    d->localPasswordLevel = level;
}

void QvexPasswordPopup::setRcActive(bool active)
{
    d->rcActive = active;
}

bool QvexPasswordPopup::isInHysteresis() const
{
    return d->inHysteresis;
}

bool QvexPasswordPopup::getHysteresisReply() const
{
    return d->hysteresisReply;
}

void QvexPasswordPopup::setHysteresisReply(bool reply)
{
    d->hysteresisReply = reply;
}

void QvexPasswordPopup::showModProtection(bool) { }

void QvexPasswordPopup::UpdateText() { }

void QvexPasswordPopup::accept()
{
    QString entered = lineEditText();
    [[maybe_unused]] const bool fits = d->password.assign(entered);
    Q_ASSERT(fits);
    SecretText::wipe(entered);
    lineEditClear();
    d->removeProtection = disablePasswordProtectionIsChecked();
    QvexNumpadDlg::accept();
}

void QvexPasswordPopup::reject()
{
    d->password.clear();
    QvexNumpadDlg::reject();
}

void QvexPasswordPopup::showEvent(QShowEvent *event)
{
    lineEditClear();
    d->password.clear();
    d->removeProtection = false;
    if (!d->forcedRemoval) {
        disablePasswordProtectionSetChecked(false);
        disablePasswordProtectionSetDisabled(false);
    }
    displayPasswordSetChecked(false);
    QvexNumpadDlg::showEvent(event);
}

void QvexPasswordPopup::changeEvent(QEvent *event)
{
    QvexNumpadDlg::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setWindowTitle(tr("Password Protection"));
    }
}
