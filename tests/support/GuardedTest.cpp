#include "GuardedTest.h"

#include <QTest>

void GuardedTest::init()
{
    m_messages.emplace();
}

void GuardedTest::cleanup()
{
    const QStringList unannounced = m_messages->unannounced();
    m_messages.reset();
    QVERIFY2(unannounced.isEmpty(), qPrintable(unannounced.join(QLatin1Char('\n'))));
}
