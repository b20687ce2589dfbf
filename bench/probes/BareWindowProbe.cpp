// What the toolkit asks of any program: one window of the program's size with one label. It ends
// when the window is painted.

#include "Probe.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

int main(int argumentCount, char** arguments) {
    constexpr int width = 1180;
    constexpr int height = 720;
    PaintWatch<QApplication> application(argumentCount, arguments);
    application.OnPainted = TellPeakMemoryAndEnd;
    QWidget window;
    window.resize(width, height);
    QVBoxLayout rows(&window);
    QLabel label(u"Delivery"_s);
    label.setObjectName(PaintedLabel());
    rows.addWidget(&label);
    window.show();
    return QApplication::exec();
}
