#pragma once

#include <QColor>

/// The colours of settings and of printed pages are numbers, 0x00BBGGRR.

inline QColor ColorOf(quint32 color) {
    return {int(color & 0xff), int(color >> 8 & 0xff), int(color >> 16 & 0xff)};
}

inline quint32 NumberOf(const QColor& color) {
    return quint32(color.red()) | quint32(color.green()) << 8 | quint32(color.blue()) << 16;
}
