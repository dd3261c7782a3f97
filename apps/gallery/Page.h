#pragma once

#include <QDebug>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>

/**
 * A widget of the library on show.
 *
 * A page is written like this: recipe() makes the widget in the ten lines that an application would
 * write, connects its signals to note() and names what is worth watching with watch(). The gallery
 * shows the source of recipe() beside the widget. Everything else that a page needs to play with
 * its widget goes into controls() and scenes().
 *
 * A new page is a class in pages/ with a file of its own name, a line in the list of PageList.cpp
 * and one in CMakeLists.txt.
 */
class Page : public QObject
{
    Q_OBJECT

public:
    /// Something to be seen on a page, for its pictures.
    struct Scene
    {
        QString name; ///< follows the page's name in the picture's; empty for the page itself
        std::function<void()> play; ///< may run a dialog, which is cancelled after the picture
        int settle = 150; ///< milliseconds from the beginning of play() to the picture
    };

    struct Watched
    {
        QString label;
        std::function<QVariant()> value;
    };

    /// @p name is that of the command line and of the pictures.
    Page(const QString &name, const QString &title, const QString &purpose,
         QObject *parent = nullptr);

    QString name() const { return m_name; }
    QString title() const { return m_title; }
    QString purpose() const { return m_purpose; }
    const QVector<Watched> &watched() const { return m_watched; }

    /// The text of the page's recipe(), as it was compiled.
    QString source() const;

    /// Makes the widget; called once, before controls().
    virtual QWidget *recipe(QWidget *parent) = 0;
    /// What the page offers to play with its widget; nothing by default.
    virtual QWidget *controls(QWidget *parent);
    /// One picture of the page as it is, by default.
    virtual QVector<Scene> scenes();

Q_SIGNALS:
    void noted(const QString &line);

protected:
    /// Writes a signal and its arguments to the page's log.
    template<typename... Values>
    void note(const QString &signal, const Values &...values)
    {
        QString arguments;
        QDebug stream(&arguments);
        stream.nospace();
        ((stream << values << ", "), ...);
        arguments.chop(arguments.isEmpty() ? 0 : 2);
        Q_EMIT noted(signal + u'(' + arguments + u')');
    }

    /// Shows what @p value gives beside the widget, at all times.
    void watch(const QString &label, std::function<QVariant()> value);

private:
    const QString m_name;
    const QString m_title;
    const QString m_purpose;
    QVector<Watched> m_watched;
};
