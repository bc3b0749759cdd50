// The program from its start to the first painting of the main window, and then the end. The
// argument is the settings file.

#include "bench/first_paint.h"
#include "ui/program.h"

int main(int argc, char* argv[]) {
  return ng::RunProgram(argc, argv, [](QWidget& main) { new ng::FirstPaint(main); });
}
