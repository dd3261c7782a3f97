#pragma once

#include <memory>

#include "QvexNumpadDlg.h"

/**
 * Asks for the password that unlocks a protected operation. One popup serves the whole application,
 * in the window that was set with setParentApplication(), else in the active one.
 *
 * The answer is remembered for 800 ms, so that a burst of protected operations asks only once: a
 * refused or cancelled prompt refuses them, too.
 *
 * The password is "0000" until setLocalNormalPassword() replaces it. Every product must do that:
 * this one is public.
 */
class VEX_EXPORT QvexPasswordPopup : public QvexNumpadDlg
{
    Q_OBJECT

public:
    explicit QvexPasswordPopup(QWidget *parent = nullptr, const char *name = nullptr);
    ~QvexPasswordPopup() override;

    /** The one popup; it is made on first use and deleted with the application object. */
    static QvexPasswordPopup *instance();

    /**
     * Whether a protected operation may go on; asks the user where it must.
     *
     * With @p removeRequested the prompt removes the protection, and is shown even if an answer is
     * remembered. Under remote control nobody is asked, unless @p ignoreRemote is set. While the
     * popup is open already the answer is no.
     */
    bool testAndRemoveProtectionPopup(bool removeRequested, bool ignoreRemote);
    /** Remembers the answer for another 800 ms; forgets it when no protection is active. */
    void hysteresisRetrig();

    /** What was entered at the last acceptance; empty after a cancel and while it is open. */
    QString getPassword() const;
    /** Whether the box for removing the protection was ticked at the last acceptance. */
    bool getRemoveProtection() const;

    /**
     * The password to compare with, 128 characters at most: a longer one is refused with a
     * warning, and the old one stays.
     */
    void setLocalNormalPassword(const QString &password);
    /** 0, the default, means no protection; any other level needs the password. */
    void setLocalPasswordLevel(int level);
    /** Whether the instrument is under remote control; false by default. */
    void setRcActive(bool active);

    /** Whether an answer is remembered, and which. */
    bool isInHysteresis() const;
    bool getHysteresisReply() const;
    void setHysteresisReply(bool reply);

    /** These two do nothing: the popup looks after its texts by itself. */
    void showModProtection(bool show);
    void UpdateText();

public Q_SLOTS:
    void accept() override;
    void reject() override;

Q_SIGNALS:
    /** The user has removed the protection, with the right password. */
    void disableModProtection();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void hysteresisTrigged();

private:
    struct Private;

    bool ask(bool removeRequested);
    bool refuse();
    bool judge(bool removeRequested);

    const std::unique_ptr<Private> d;
};
