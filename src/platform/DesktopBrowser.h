#pragma once

#include "platform/WebBrowser.h"

class DesktopBrowser : public WebBrowser {
public:
    void Open(const QString& address) override;
};
