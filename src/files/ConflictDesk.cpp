#include "ConflictDesk.h"

#include <QMutex>
#include <QWaitCondition>

/// The question that is open, and its answer.
struct ConflictDesk::Slip
{
    quint64 begin()
    {
        const QMutexLocker locker(&mutex);
        choice.reset();
        return ++question;
    }
    void answer(quint64 number, ConflictChoice chosen, bool isForAll)
    {
        const QMutexLocker locker(&mutex);
        if (number == question && !choice) {
            choice = chosen;
            forAll = isForAll;
            answered.wakeAll();
        }
    }

    QMutex mutex;
    QWaitCondition answered;
    quint64 question = 0;
    std::optional<ConflictChoice> choice;
    bool forAll = false;
    bool closed = false;
};

ConflictDesk::ConflictDesk()
    : m_slip(std::make_shared<Slip>())
{
}

ConflictChoice ConflictDesk::decide(const FileConflict &conflict)
{
    if (m_forAll) {
        return *m_forAll;
    }
    if (!m_ask) {
        return ConflictChoice::Skip;
    }
    const quint64 number = m_slip->begin();
    m_ask(conflict, [slip = m_slip, number](ConflictChoice choice, bool forAll) {
        slip->answer(number, choice, forAll);
    });
    const QMutexLocker locker(&m_slip->mutex);
    while (!m_slip->choice && !m_slip->closed) {
        m_slip->answered.wait(&m_slip->mutex);
    }
    if (m_slip->closed) {
        return ConflictChoice::Cancel;
    }
    if (m_slip->forAll) {
        m_forAll = m_slip->choice;
    }
    return *m_slip->choice;
}

void ConflictDesk::close()
{
    const QMutexLocker locker(&m_slip->mutex);
    m_slip->closed = true;
    m_slip->answered.wakeAll();
}
