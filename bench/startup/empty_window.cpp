#include <QApplication>
#include <QListView>
#include <QProgressBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "bench/startup/end_at_first_frame.h"

// The least that a program with windows does: one of the usual size, with tabs, a list and a bar of
// the toolkit's own look and nothing in them.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const frostmark::EndAtFirstFrame end;
  QWidget window;
  auto* tabs = new QTabWidget;
  tabs->addTab(new QListView, "List");
  auto* rows = new QVBoxLayout(&window);
  rows->addWidget(tabs);
  rows->addWidget(new QProgressBar);
  window.resize(900, 560);
  window.show();
  return QApplication::exec();
}
