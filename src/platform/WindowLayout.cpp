#include "platform/WindowLayout.h"

#include "platform/ProgramTitle.h"
#include "platform/Theme.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr double defaultWidth = 86;
constexpr double defaultHeight = 50;
/// For the window manager's frame and a panel of the desktop.
constexpr int desktopMargin = 60;

/// The desktop may have shrunk since the layout was kept.
void FitToDesktop(QWidget& window) {
    const QRect desktop = window.screen()->availableGeometry();
    window.resize(window.size().boundedTo(desktop.size() - QSize(desktopMargin, desktopMargin)));
    if (!desktop.contains(window.frameGeometry()))
        window.move(desktop.center() - window.rect().center());
}

/// The user's own file, outside the data folder.
class Layouts : public QSettings {
public:
    Layouts()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, ProgramName(), u"window-layout"_s) {
    }
};

} // namespace

void WindowLayout::Restore(QWidget& window, const QString& key) {
    if (!window.restoreGeometry(Layouts().value(key).toByteArray()))
        window.resize(Em(defaultWidth), Em(defaultHeight));
    FitToDesktop(window);
}

void WindowLayout::Save(const QWidget& window, const QString& key) {
    Layouts().setValue(key, window.saveGeometry());
}
