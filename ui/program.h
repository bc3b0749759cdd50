#pragma once

#include <functional>

class QApplication;
class QWidget;

namespace ng {

/// What the toolkit needs before the first window.
void PrepareApplication(QApplication& application);

/// Starts the program and runs it to its end; returns the exit code. `loaded`, if there is one, is
/// called with the main window before that is shown.
int RunProgram(int argc, char** argv, std::function<void(QWidget&)> loaded = {});

}  // namespace ng
