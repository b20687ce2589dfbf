#include "platform/PrintedDocuments.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString PrintedDocumentsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
           u"/Tessel Delivery"_s;
}

QString PrintedDocumentPath(const QString& title) {
    return PrintedDocumentsFolder() + u'/' + QString(title).replace(u'/', u'-') + u".pdf"_s;
}

QString FreePath(const QString& path) {
    const QString suffix = QFileInfo(path).suffix();
    const QString ending = suffix.isEmpty() ? QString() : u'.' + suffix;
    const QString name = path.chopped(ending.size());
    QString free = path;
    for (int number = 2; QFileInfo::exists(free); ++number)
        free = name + u" ("_s + QString::number(number) + u')' + ending;
    return free;
}
