#include "startup/Manual.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

QString ManualAddress() {
    const QString installed = QCoreApplication::applicationDirPath() +
                              u"/../share/doc/tessel-delivery/manual/index.html"_s;
    const QString inSource = QStringLiteral(TESSEL_SOURCE_FOLDER "/docs/manual/index.html");
    const QString manual = QFileInfo::exists(installed) ? installed : inSource;
    return QUrl::fromLocalFile(QFileInfo(manual).absoluteFilePath()).toString();
}
