#include "customers/AutoAdvancePanel.h"

#include "platform/Form.h"
#include "platform/Screen.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// Places in the array Label2.
enum SpeedLabel { Slower = 35, Faster = 36 };

/// Milliseconds that a page key moves the slider.
constexpr int pageStep = 500;

} // namespace

AutoAdvancePanel::AutoAdvancePanel(AutoAdvance& autoAdvance)
    : advance(autoAdvance), Timer1(Named(new QTimer(this), u"Timer1"_s)),
      Slider1(Named(new QSlider(Qt::Horizontal), u"Slider1"_s)),
      slower(Named(SoftLabel(u"Slower"_s), Indexed(u"Label2"_s, Slower))),
      faster(Named(SoftLabel(u"Faster"_s), Indexed(u"Label2"_s, Faster))) {
    Timer1->setInterval(advance.Interval);
    Slider1->setRange(AutoAdvance::shortestInterval, AutoAdvance::longestInterval);
    Slider1->setSingleStep(AutoAdvance::step);
    Slider1->setPageStep(pageStep);
    Slider1->setValue(advance.Interval);
    Slider1->setAccessibleName(u"Milliseconds between two customers"_s);
    slower->installEventFilter(this);
    faster->installEventFilter(this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(slower);
    row->addWidget(Slider1, 1);
    row->addWidget(faster);
    connect(Slider1, &QSlider::valueChanged, this, &AutoAdvancePanel::Slider1_Change);
    connect(Timer1, &QTimer::timeout, this, &AutoAdvancePanel::Tick);
}

void AutoAdvancePanel::Show() {
    if (!advance.IsOn)
        Timer1->stop();
    else if (!Timer1->isActive())
        Timer1->start();
}

void AutoAdvancePanel::Stop() {
    Timer1->stop();
}

void AutoAdvancePanel::Slider1_Change(int value) {
    advance.Interval = value;
    Timer1->setInterval(value);
}

bool AutoAdvancePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick) {
        if (watched == faster)
            advance.Faster();
        else
            advance.Slower();
        Slider1->setValue(advance.Interval);
    }
    return QWidget::eventFilter(watched, event);
}
