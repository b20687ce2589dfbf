#pragma once

#include <QString>

/// The application's title. It is not the toolkit's display name, which would be put behind every
/// window's own title.
inline QString ProgramTitle() {
    return QStringLiteral("Tessel Delivery");
}

/// The program's file name.
inline QString ProgramName() {
    return QStringLiteral("tessel-delivery");
}
