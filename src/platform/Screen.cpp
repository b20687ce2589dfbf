#include "platform/Screen.h"

#include "platform/ElidedLabel.h"
#include "platform/EntryField.h"
#include "platform/WindowLayout.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int cardSide = 16;
constexpr int cardTop = 12;
constexpr int bandSide = 20;
constexpr int bandTop = 10;
constexpr int controlGap = 8;

QFrame* MakeBand(const QString& name) {
    auto* band = Named(new QFrame, name);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(bandSide, bandTop, bandSide, bandTop);
    row->setSpacing(controlGap);
    return band;
}

} // namespace

Screen::Screen(const QString& name, const QString& title, const QString& layoutKey,
               const QString& saveKey)
    : restoredFrom(layoutKey), savedUnder(saveKey.isEmpty() ? layoutKey : saveKey) {
    setObjectName(name);
    setWindowTitle(title);

    body = Named(new QWidget, u"body"_s);
    auto* scroll = new QScrollArea;
    scroll->setWidget(body);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);

    auto* whole = new QWidget;
    auto* rows = new QVBoxLayout(whole);
    rows->setContentsMargins({});
    rows->setSpacing(0);
    rows->addWidget(MakeHead(title));
    rows->addWidget(scroll, 1);
    rows->addWidget(MakeFoot());
    setCentralWidget(whole);
}

Screen::~Screen() {
    if (isVisible())
        WindowLayout::Save(*this, savedUnder);
}

void Screen::BringUp() {
    if (!isVisible())
        WindowLayout::Restore(*this, restoredFrom);
    show();
    raise();
    activateWindow();
}

QWidget* Screen::MakeHead(const QString& caption) {
    QFrame* head = MakeBand(u"headBand"_s);
    captionLabel = Named(new QLabel(caption), u"caption"_s);
    where = Named(new ElidedLabel, u"where"_s);
    where->setProperty("soft", true);
    where->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont large = captionLabel->font();
    constexpr double captionScale = 1.6;
    large.setPointSizeF(large.pointSizeF() * captionScale);
    large.setWeight(QFont::DemiBold);
    captionLabel->setFont(large);
    auto* row = static_cast<QHBoxLayout*>(head->layout());
    row->addWidget(captionLabel);
    row->addWidget(where, 1);
    return head;
}

QWidget* Screen::MakeFoot() {
    QFrame* foot = MakeBand(u"footBand"_s);
    auto* row = static_cast<QHBoxLayout*>(foot->layout());
    wayBack = new QHBoxLayout;
    actions = new QHBoxLayout;
    row->addLayout(wayBack);
    row->addStretch(1);
    row->addLayout(actions);
    return foot;
}

void Screen::SetCaption(const QString& caption) {
    captionLabel->setText(caption);
}

void Screen::SetWhere(const QString& text) {
    where->setText(text);
}

void Screen::AddWayBack(QWidget* control) {
    wayBack->addWidget(control);
}

void Screen::AddAction(QWidget* control) {
    actions->addWidget(control);
}

void Screen::AddMainAction(QAbstractButton* button) {
    button->setProperty("mainAction", true);
    AddAction(button);
}

/// Enter goes on from a box to tick as well, which has no use for it.
void Screen::keyPressEvent(QKeyEvent* event) {
    auto* box = qobject_cast<QAbstractButton*>(focusWidget());
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && box && box->isCheckable())
        MoveOnFrom(box);
    else
        QMainWindow::keyPressEvent(event);
}

void Screen::closeEvent(QCloseEvent* event) {
    if (!event->spontaneous()) {
        QMainWindow::closeEvent(event);
        return;
    }
    event->ignore();
    Q_EMIT ClosedByUser();
}

void Screen::hideEvent(QHideEvent* event) {
    WindowLayout::Save(*this, savedUnder);
    QMainWindow::hideEvent(event);
}

Card::Card(const QString& headingText, QWidget* parent)
    : QFrame(parent), rows(new QVBoxLayout(this)), heading(new QLabel(headingText)) {
    setProperty("card", true);
    rows->setContentsMargins(cardSide, cardTop, cardSide, cardTop);
    rows->setSpacing(controlGap);
    heading->setProperty("cardHeading", true);
    heading->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    rows->addWidget(heading);
}

QString Indexed(const QString& name, int index) {
    return u"%1(%2)"_s.arg(name).arg(index);
}
