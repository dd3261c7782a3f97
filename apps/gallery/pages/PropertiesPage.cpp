#include "PropertiesPage.h"

#include "../Controls.h"
#include "../Look.h"

#include <properties/PropertiesManager.h>

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr long volume = 9001;
constexpr long operatorName = 9002;
constexpr long group = 90;

QLineEdit *makeEdit(const QString &text, QWidget *parent)
{
    auto *edit = new QLineEdit(text, parent);
    edit->setAccessibleName(PropertiesPage::tr("Operator"));
    edit->setFixedSize(320, Look::fingerSize);
    edit->setTextMargins(8, 0, 8, 0);
    return edit;
}

} // namespace

PropertiesPage::PropertiesPage()
    : Page(u"properties"_s, tr("Properties"),
           tr("The store of numbered properties; who listens is told of each change."))
    , m_path(m_directory.filePath(u"setup.xml"_s))
{
}

PropertiesPage::~PropertiesPage()
{
    PropertiesManager::instance()->unregisterListener(this);
}

QWidget *PropertiesPage::recipe(QWidget *parent)
{
    PropertiesManager *properties = PropertiesManager::instance();
    properties->registerSetupProperty(volume, u"Volume"_s, u"40"_s, group);
    properties->registerStatusProperty(operatorName, u"Operator"_s, u"nobody"_s, group);
    properties->registerListener(volume, this); // PropertyChanged(volume) is called
    properties->registerGroupListener(group, this); // PropertyGroupChanged(group) is called

    auto *edit = makeEdit(properties->getProperty(operatorName), parent);
    connect(edit, &QLineEdit::textChanged, this, [properties](const QString &text) {
        properties->setProperty(operatorName, text, false);
    });
    watch(u"Volume"_s, [properties] { return properties->getProperty(volume); });
    watch(u"Operator"_s, [properties] { return properties->getProperty(operatorName); });
    return edit;
}

QWidget *PropertiesPage::controls(QWidget *parent)
{
    PropertiesManager *properties = PropertiesManager::instance();
    auto *controls = new Controls(parent);
    controls->addButton(tr("Volume -"), [this] { step(-10); });
    controls->addButton(tr("Volume +"), [this] { step(+10); });
    controls->addButton(tr("Save"), [this, properties] {
        note(u"saveProperties() returned"_s, properties->saveProperties(m_path));
    });
    controls->addButton(tr("Load"), [this, properties] {
        note(u"loadProperties() returned"_s, properties->loadProperties(m_path));
    });
    return controls;
}

QVector<Page::Scene> PropertiesPage::scenes()
{
    return {{{}, [this] { step(+10); }}};
}

void PropertiesPage::PropertyChanged(long id)
{
    note(u"PropertyChanged"_s, id);
}

void PropertiesPage::PropertyGroupChanged(long changed)
{
    note(u"PropertyGroupChanged"_s, changed);
}

void PropertiesPage::step(int by)
{
    PropertiesManager *properties = PropertiesManager::instance();
    const int value = properties->getPropertyInt(volume, 0) + by;
    properties->setProperty(volume, QString::number(value), false);
}
