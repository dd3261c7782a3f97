#include "Page.h"

#include "Recipe.h"

Page::Page(const QString &name, const QString &title, const QString &purpose, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_title(title)
    , m_purpose(purpose)
{
}

QString Page::source() const
{
    return recipeOf(QLatin1StringView(metaObject()->className()));
}

QWidget *Page::controls(QWidget *)
{
    return nullptr;
}

QVector<Page::Scene> Page::scenes()
{
    return {{{}, [] {}}};
}

void Page::watch(const QString &label, std::function<QVariant()> value)
{
    m_watched.append({label, std::move(value)});
}
