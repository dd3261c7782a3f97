// The smallest instrument application: two windows, a test that runs at the controller, and its
// link.

#include <QApplication>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>

#include <corba/BiDirectionalCORBA.h>
#include <corba/FcpAppCORBA.h>
#include <corba/VexLinkSupervisor.h>
#include <frame/ClientGUIBase.h>
#include <frame/ColorTheme.h>
#include <input/QLineEditNumber.h>

using namespace Qt::StringLiterals;

class Counter : public ClientGUIBase
{
public:
    explicit Counter(QVector<QString> &arguments)
        : ClientGUIBase(arguments)
    {
        setApplicationName(u"Counter"_s);
        auto *setup = new QWidget;
        auto *seconds = new QLineEditNumber(setup); // a tap opens the numpad or the wheel
        seconds->setMinimum(1);
        seconds->setMaximum(3600);
        seconds->setValue(10);
        (new QVBoxLayout(setup))->addWidget(seconds, 0, Qt::AlignCenter);
        registerApplicationWindow(setup); // the first is the setup window: SETUP
        auto *start = new QPushButton(u"Start"_s);
        registerApplicationWindow(start); // the second is the test window: TEST
        connect(start, &QPushButton::clicked, this, [this, seconds] {
            QVector<QString> options {u"duration=%1"_s.arg(seconds->text())};
            FcpAppCORBA::instance()->launchTest(u"BERT"_s, options);
        });
        connect(this, &ClientGUIBase::requestFwShutdown, qApp, &QApplication::quit);
    }
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    ColorTheme::dark().apply();
    QVector<QString> arguments = QApplication::arguments();
    if (!BiDirectionalCORBA::initializeInstance()) {
        qFatal("%s", qPrintable(BiDirectionalCORBA::lastError()));
    }
    const auto orb = qScopeGuard(BiDirectionalCORBA::deleteInstance);
    FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
    const std::unique_ptr<FcpAppCORBA> controller(FcpAppCORBA::instance());
    VexLinkSupervisor link(controller.get()); // makes the link, and makes it again when lost
    Counter window(arguments);
    QObject::connect(&link, &VexLinkSupervisor::stateChanged, &window,
                     [&](auto, const QString &reason) { window.setApplicationStatus(reason); });
    window.showMaximized();
    link.start(u"localhost"_s, 5650);
    return QApplication::exec();
}
