#include "PlaceBar.h"

#include <QBoxLayout>
#include <QResizeEvent>
#include <QToolButton>

#include "FileNames.h"
#include "FilePaths.h"
#include "FilesTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a button's frame and the gaps beside its icon and text take, in pixels.
constexpr int aroundText = 40;

/// A button whose text gives way in the middle.
class PlaceButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

    QSize minimumSizeHint() const override
    {
        return {FilesTheme::placeHeight, FilesTheme::placeHeight};
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QToolButton::resizeEvent(event);
        const int room = event->size().width() - FilesTheme::entryIcon - aroundText;
        const QString name = FileNames::shown(accessibleName());
        setText(u' '
                + FilePaths::buttonText(fontMetrics().elidedText(name, Qt::ElideMiddle, room)));
    }
};

QString iconOf(FilePlace::Kind kind)
{
    switch (kind) {
    case FilePlace::Kind::Instrument:
        return u"place_instrument"_s;
    case FilePlace::Kind::Computer:
        return u"place_computer"_s;
    case FilePlace::Kind::Medium:
        return u"place_medium"_s;
    }
    return {};
}

} // namespace

PlaceBar::PlaceBar(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_layout(new QBoxLayout(
          orientation == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(FilesTheme::gap);
    if (orientation == Qt::Vertical) {
        setFixedWidth(FilesTheme::placeWidth);
        m_layout->addStretch();
    }
}

QToolButton *PlaceBar::makeButton(const FilePlace &place)
{
    auto *button = new PlaceButton(this);
    button->setObjectName(u"Place_"_s + place.home);
    button->setAccessibleName(place.title);
    button->setText(u' ' + FilePaths::buttonText(FileNames::shown(place.title)));
    button->setIcon(FilesTheme::icon(iconOf(place.kind)));
    button->setIconSize({FilesTheme::entryIcon, FilesTheme::entryIcon});
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setProperty("place", true);
    button->setCheckable(true);
    button->setMinimumHeight(FilesTheme::placeHeight);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button, &QToolButton::clicked, this, [this, place] {
        showCurrent(); // the place decides, not the tap
        Q_EMIT placeChosen(place);
    });
    return button;
}

void PlaceBar::setPlaces(const QVector<FilePlace> &places)
{
    for (QToolButton *button : std::as_const(m_buttons)) {
        button->hide();
        button->deleteLater(); // a tap on it may be what led here
    }
    m_buttons.clear();
    m_places = places;
    for (const FilePlace &place : places) {
        m_buttons.append(makeButton(place));
        m_layout->insertWidget(int(m_buttons.size()) - 1, m_buttons.constLast());
    }
    showCurrent();
}

void PlaceBar::setCurrent(const FilePlace &place)
{
    m_current = place;
    showCurrent();
}

void PlaceBar::showCurrent()
{
    for (qsizetype i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setChecked(m_current == m_places[i]);
    }
}
