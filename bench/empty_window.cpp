// The least that a program of this kind can do: a main window with a table of 100 rows.

#include <QApplication>
#include <QMainWindow>
#include <QTableWidget>

#include "bench/first_paint.h"

int main(int argc, char* argv[]) {
  constexpr int kRows = 100;
  constexpr int kColumns = 3;
  const QApplication application(argc, argv);
  QMainWindow window;
  auto* table = new QTableWidget(kRows, kColumns, &window);
  window.setCentralWidget(table);
  window.resize(1000, 700);
  new ng::FirstPaint(window);
  window.show();
  return QApplication::exec();
}
