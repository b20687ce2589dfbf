#pragma once

class QWidget;

/// Keeps the place and size of each window, by its object name, in the user's configuration folder.
namespace WindowLayout {

/// Without a kept layout the window gets a size that shows all of it on a small desktop.
void Restore(QWidget& window);
void Save(const QWidget& window);

} // namespace WindowLayout
