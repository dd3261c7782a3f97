#include "ArtworkPage.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Sign
{
    QString name;
    int size;
};

const QVector<Sign> signs {
    {u":/close-icon-48.png"_s, 48},      {u":/help-icon-48.png"_s, 48},
    {u":/images/home.png"_s, 48},        {u":/images/back.png"_s, 48},
    {u":/images/forward.png"_s, 48},     {u":/images/chevron_down.png"_s, 24},
    {u":/images/information.png"_s, 48}, {u":/images/question.png"_s, 48},
    {u":/images/chevron_up.png"_s, 24},  {u":/images/warning.png"_s, 48},
    {u":/images/critical.png"_s, 48},
};

QGridLayout *addGround(QLayout *layout, const QString &colour)
{
    layout->setContentsMargins(0, 0, 0, 0);
    auto *frame = new QFrame;
    frame->setObjectName(u"Ground"_s);
    frame->setStyleSheet(u"#Ground { background: %1; border-radius: 6px; }"_s.arg(colour));
    layout->addWidget(frame);
    auto *grid = new QGridLayout(frame);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(2);
    return grid;
}

QLabel *picture(const QString &name)
{
    auto *label = new QLabel;
    label->setPixmap(QIcon(name).pixmap(60));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

void addBars(QGridLayout *grid)
{
    grid->addWidget(picture(u":/images/bar_up.png"_s), 0, 0, 1, 5);
    grid->addWidget(picture(u":/images/bar_left.png"_s), 1, 0, 4, 1);
    grid->addWidget(picture(u":/images/bar_right.png"_s), 1, 4, 4, 1);
    grid->addWidget(picture(u":/images/bar_down.png"_s), 5, 0, 1, 5);
}

} // namespace

ArtworkPage::ArtworkPage()
    : Page(u"artwork"_s, tr("Artwork"), tr("The pictures of the library, on light and on dark."))
{
}

QWidget *ArtworkPage::recipe(QWidget *parent)
{
    auto *both = new QHBoxLayout(new QWidget(parent));
    for (const QString &colour : {u"white"_s, u"#202428"_s}) {
        QGridLayout *grid = addGround(both, colour);
        addBars(grid);
        for (int i = 0; i < signs.size(); ++i) {
            auto *sign = new QLabel;
            // An icon takes NAME@2x.png by itself on a dense screen; a pixmap does not.
            sign->setPixmap(QIcon(signs[i].name).pixmap(signs[i].size));
            grid->addWidget(sign, 1 + i / 3, 1 + i % 3, Qt::AlignCenter);
        }
    }
    return both->parentWidget();
}
