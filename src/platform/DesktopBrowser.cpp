#include "platform/DesktopBrowser.h"

#include <QDesktopServices>
#include <QUrl>

void DesktopBrowser::Open(const QString& address) {
    QDesktopServices::openUrl(QUrl(address));
}
