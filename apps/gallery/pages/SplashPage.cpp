#include "SplashPage.h"

#include "../Controls.h"

#include <frame/SplashLines.h>

using namespace Qt::Literals::StringLiterals;

SplashPage::SplashPage()
    : Page(u"splash"_s, tr("SplashLines"), tr("What an application tells while it starts."))
{
}

QWidget *SplashPage::recipe(QWidget *parent)
{
    m_lines = new SplashLines(parent);
    m_lines->setFixedSize(624, 240);
    m_lines->addLine(tr("Looking for the controller"));
    m_lines->addLines({tr("Controller found at 127.0.0.1"), tr("Reading 142 properties")});
    watch(u"lines"_s, [this] { return m_lines->blockCount(); });
    return m_lines;
}

QWidget *SplashPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addButton(tr("addLine()"), [this] { m_lines->addLine(tr("Module 2 is ready")); });
    controls->addButton(tr("An error"),
                        [this] { m_lines->addLine(tr("Module 3 does not answer"), true); });
    return controls;
}

QVector<Page::Scene> SplashPage::scenes()
{
    return {{{}, [] {}}, {u"errors"_s, [this] {
                              m_lines->addLine(tr("Module 3 does not answer"), true);
                              for (int module = 4; module < 12; ++module) {
                                  m_lines->addLine(tr("Module %1 is ready").arg(module));
                              }
                          }}};
}
