#pragma once

#include "platform/WebBrowser.h"
#include "store/BasicDiskRoutines.h"

/// Opens an address in the default browser, by way of the shortcut file Temp.url in the data
/// folder, which stays there for the next call.
void OpenWebPage(BasicDiskRoutines& disk, WebBrowser& browser, const QString& address);
