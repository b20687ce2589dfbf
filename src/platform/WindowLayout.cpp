#include "platform/WindowLayout.h"

#include <QSettings>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultWidth = 1180;
constexpr int defaultHeight = 720;

/// The user's own file, outside the data folder.
class Layouts : public QSettings {
public:
    Layouts()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, u"tessel-delivery"_s,
                    u"window-layout"_s) {}
};

QString KeyOf(const QWidget& window) {
    return u"TesselDelivery/"_s + window.objectName();
}

} // namespace

void WindowLayout::Restore(QWidget& window) {
    if (!window.restoreGeometry(Layouts().value(KeyOf(window)).toByteArray()))
        window.resize(defaultWidth, defaultHeight);
}

void WindowLayout::Save(const QWidget& window) {
    Layouts().setValue(KeyOf(window), window.saveGeometry());
}
