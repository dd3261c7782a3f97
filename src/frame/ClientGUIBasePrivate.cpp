#include "ClientGUIBase_p.h"

#include <QRegularExpression>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

#include "FrameLayout.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SlideMs = 500;

/// Of all labels but that of the current window.
QString labelSheet()
{
    return u"QLabel { color:white; font-size: %1px; font-weight: bold; }"_s;
}

QColor colorOf(const QString &text)
{
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    if (parts.size() != 3) {
        return QColor(200, 200, 200);
    }
    const auto part = [&parts](int index) { return qBound(0, parts[index].toInt(), 255); };
    return QColor(part(0), part(1), part(2));
}

void setLabelStyle(AppLabel *label, const QString &sheet)
{
    label->setStyleSheet(sheet.arg(FrameLayout::labelFont));
}

} // namespace

void ClientGUIBase::Private::readArguments(const QVector<QString> &args)
{
    static const QRegularExpression idWord(u"--appId=(.*)"_s);
    static const QRegularExpression colorWord(u"--appColor=(.*)"_s);
    QString colorText;
    for (const QString &word : args) {
        if (const auto match = idWord.match(word); match.hasMatch()) {
            id = match.captured(1);
        }
        if (const auto match = colorWord.match(word); match.hasMatch()) {
            colorText = match.captured(1);
        }
    }
    color = colorOf(colorText);
}

void ClientGUIBase::Private::makeStack()
{
    stack = new SlidingStackedWidget(q);
    stack->setObjectName(u"FwWindowStack"_s);
    stack->setSpeed(SlideMs);
    stack->setAnimation(QEasingCurve::OutQuad);
    stack->setWrap(true);
    connect(stack, &QStackedWidget::currentChanged, q, &ClientGUIBase::on_windowChanged);
}

void ClientGUIBase::Private::makeLabelRow()
{
    bar = new QFrame(q);
    bar->setObjectName(u"FwLabelBar"_s);
    bar->setStyleSheet(u"QFrame#FwLabelBar { background-color: #1b242c; }"_s);
    labelRow = new QWidget(q);
    labelRow->setObjectName(u"FwLabelRow"_s);
    rowLayout = new QHBoxLayout(labelRow);
    rowLayout->setSpacing(0);
    rowLayout->setContentsMargins(0, 0, 0, 0);
}

void ClientGUIBase::Private::makeNavigation()
{
    back = new FwNavigationButton(FwNavigationButton::Left, q);
    back->setObjectName(u"FwBackButton"_s);
    next = new FwNavigationButton(FwNavigationButton::Right, q);
    next->setObjectName(u"FwNextButton"_s);
    connect(back, &QAbstractButton::clicked, q, &ClientGUIBase::on_slideBack);
    connect(next, &QAbstractButton::clicked, q, &ClientGUIBase::on_slideNext);
    back->setEnabled(false);
    next->setEnabled(false);
}

void ClientGUIBase::Private::makeApplicationLabels()
{
    launchLabel = makeLabel(0, u"FwAppLaunchButtonFrame"_s, q);
    nameLabel = makeLabel(1, u"appWindLabel"_s, q);
    for (AppLabel *label : {launchLabel, nameLabel}) {
        setLabelStyle(label, labelSheet());
        connect(label, &AppLabel::labelClicked, q, &ClientGUIBase::on_appLabelClicked);
    }
}

void ClientGUIBase::Private::makeSplash()
{
    splash = new QFrame(q);
    splash->setObjectName(u"FwSplashPanel"_s);
    splash->setAutoFillBackground(true);
    (new QVBoxLayout(splash))->setContentsMargins(0, 0, 0, 0);
    splash->hide();
}

void ClientGUIBase::Private::addWindow(QWidget *content, const QString &text, bool hasOwnName)
{
    auto *wrapper = new QFrame;
    wrapper->setObjectName(u"FwCentralWidget"_s);
    auto *ground = new QFrame(wrapper);
    ground->setObjectName(u"AppBackWidget"_s);
    ground->setStyleSheet(
        u"QFrame#AppBackWidget { background-color: rgb(%1, %2, %3); }"_s.arg(color.red())
            .arg(color.green())
            .arg(color.blue()));
    content->setParent(wrapper);
    content->show();

    const int index = int(windows.size());
    windows.append({wrapper, ground, content, makeWindowLabel(index, u"appWindLabel"_s, {}),
                    makeWindowLabel(index, u"curWindLabel"_s, u" text-decoration: underline;"_s),
                    hasOwnName});
    setLabelText(windows.last(), text);
    placeWindows();
    // The first one becomes current with this, so everything has to be there.
    stack->addWidget(wrapper);
}

AppLabel *ClientGUIBase::Private::makeWindowLabel(int index, const QString &objectName,
                                                  const QString &decoration) const
{
    AppLabel *label = makeLabel(index, objectName, labelRow);
    setLabelStyle(label,
                  u"QLabel#"_s + objectName + u" { color:white;"_s + decoration
                      + u" font-size: %1px; font-weight: bold; }"_s);
    rowLayout->addWidget(label);
    connect(label, &AppLabel::labelClicked, q, &ClientGUIBase::on_labelClicked);
    return label;
}

AppLabel *ClientGUIBase::Private::makeLabel(int index, const QString &objectName,
                                            QWidget *parent) const
{
    auto *label = new AppLabel(index, parent);
    label->setObjectName(objectName);
    label->hide();
    return label;
}

void ClientGUIBase::Private::setLabelText(const Window &window, const QString &text) const
{
    for (AppLabel *label : {window.label, window.currentLabel}) {
        label->setText(text);
        label->setAccessibleName(text);
    }
}

/// @return The number of the window in whose page @p content is, however deep; -1 for none.
int ClientGUIBase::Private::indexOf(const QWidget *content) const
{
    for (int i = 0; i < windows.size(); ++i) {
        if (content && windows[i].wrapper->isAncestorOf(content)) {
            return i;
        }
    }
    return -1;
}

void ClientGUIBase::Private::markLabel(int current)
{
    markedWindow = current;
    for (int i = 0; i < windows.size(); ++i) {
        const Window &window = windows[i];
        const bool hasText = !window.label->text().isEmpty();
        window.label->setVisible(hasText && i != current);
        window.currentLabel->setVisible(hasText && i == current);
    }
}

void ClientGUIBase::Private::layOut()
{
    const QSize size = q->size();
    placeWindows();
    stack->setGeometry(q->rect());
    slideUp->setGeometry(FrameLayout::slideUpButton(size));
    place(back, FrameLayout::backButton(size));
    place(next, FrameLayout::nextButton(size));
    bar->setGeometry(FrameLayout::bar(size));
    placeLabels();
    splash->setGeometry(q->rect());
    custom->layoutIn(q->rect());
    help->layoutIn(q->rect());
    mini->layoutIn(FrameLayout::miniPanels(size));
    missionControl->layoutIn(q->rect());
}

/// In a right-to-left layout left and right change sides.
void ClientGUIBase::Private::place(QWidget *widget, const QRect &leftToRight) const
{
    widget->setGeometry(QStyle::visualRect(q->layoutDirection(), q->rect(), leftToRight));
}

void ClientGUIBase::Private::placeWindows()
{
    for (int i = 0; i < windows.size(); ++i) {
        const Window &window = windows[i];
        window.wrapper->setFixedSize(q->size());
        window.ground->setGeometry(q->rect());
        if (window.content && i < RoleCount) {
            place(window.content, FrameLayout::window(q->size(), i));
        }
    }
}

/// Whether a touch there meets nothing but the ground around the slide-up button.
bool ClientGUIBase::Private::isGroundOfSlideUp(QPoint position) const
{
    const QWidget *touched = q->childAt(position);
    const bool isGround =
        std::any_of(windows.cbegin(), windows.cend(),
                    [touched](const Window &window) { return window.ground == touched; });
    return isGround && FrameLayout::slideUpZone(q->size()).contains(position);
}

/// The window labels end, and those of the application begin, at the grip of the mission control.
void ClientGUIBase::Private::placeLabels()
{
    const QRect left = FrameLayout::windowLabels(q->size());
    const int rowWidth = qMin(labelRow->sizeHint().width(), left.width());
    place(labelRow, left.adjusted(left.width() - rowWidth, 0, 0, 0));

    QRect right = FrameLayout::applicationLabels(q->size());
    for (AppLabel *label : {launchLabel, nameLabel}) {
        if (!label->isHidden()) {
            right.setWidth(qMin(label->sizeHint().width(), right.width()));
            place(label, right);
            right = QRect(right.topRight() + QPoint(1, 0),
                          FrameLayout::applicationLabels(q->size()).bottomRight());
        }
    }
}

/// The current window's labels stay underlined.
void ClientGUIBase::Private::styleLabels() const
{
    setLabelStyle(launchLabel, labelSheet());
    setLabelStyle(nameLabel, labelSheet());
    for (const Window &window : windows) {
        setLabelStyle(window.label, labelSheet());
    }
}
