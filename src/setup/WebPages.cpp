#include "setup/WebPages.h"

#include "store/TextLines.h"

using namespace Qt::StringLiterals;

void OpenWebPage(BasicDiskRoutines& disk, WebBrowser& browser, const QString& address) {
    disk.OpenForOutput(u"/Temp.url"_s);
    TextWriter writer(disk);
    writer.Plain(u"[InternetShortcut]"_s);
    writer.Plain(u"URL = "_s + address);
    disk.CloseAllFiles();
    browser.Open(address);
}
