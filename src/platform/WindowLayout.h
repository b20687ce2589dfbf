#pragma once

#include <QString>

class QWidget;

/// Keeps the place and size of windows under a key, in the user's configuration folder. Screens
/// with the same key follow each other in the same place.
namespace WindowLayout {

/// Without a kept layout the window gets a size that shows all of it; in any case it fits the
/// desktop.
void Restore(QWidget& window, const QString& key);
void Save(const QWidget& window, const QString& key);

} // namespace WindowLayout
