#pragma once

#include "customers/AutoAdvance.h"

#include <QWidget>

class QLabel;
class QSlider;
class QTimer;

/// The clock of the auto advance and the slider that sets its speed.
class AutoAdvancePanel : public QWidget {
    Q_OBJECT

public:
    explicit AutoAdvancePanel(AutoAdvance& autoAdvance);

    QSlider* Slider() const { return Slider1; }

    /// Lets the clock run as long as the auto advance is on.
    void Show();
    void Stop();

Q_SIGNALS:
    void Tick();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Slider1_Change(int value);

    AutoAdvance& advance;
    QTimer* Timer1;
    QSlider* Slider1;
    QLabel* slower;
    QLabel* faster;
};
