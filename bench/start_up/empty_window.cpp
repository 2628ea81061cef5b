// What a Qt program needs at least: a window of the calculator's size with nothing in it.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(480, 588);
  window.show();
  return QApplication::exec();
}
