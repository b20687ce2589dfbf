#pragma once

#include <QString>

/// The desktop's default browser. It is told an address and gives no answer.
class WebBrowser {
public:
    virtual ~WebBrowser() = default;
    virtual void Open(const QString& address) = 0;
};
