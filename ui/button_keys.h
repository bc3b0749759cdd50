#pragma once

class QMainWindow;

namespace ng {

/// Gives the buttons that are pressed all through a fight their keys: wounds, shots, reloading, the
/// combat pool. The keys work whatever page is open.
void AddButtonKeys(QMainWindow& window);

}  // namespace ng
