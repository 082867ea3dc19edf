#pragma once

#include <QDialog>
#include <QString>

class QTextBrowser;

namespace frostmark {

class Screen;

// The page that F1 lays over a window: the game in a page, and the keys of the window's screen.
// Escape or F1 takes it away.
class HelpPage : public QDialog {
  Q_OBJECT

 public:
  HelpPage(const Screen& screen, QWidget& over);

  // The keys of SCREEN as rows of an HTML table.
  static QString Keys(const Screen& screen);

 private:
  static QTextBrowser* Column(const QString& name);
  void LieOver(const QWidget& over);
};

}  // namespace frostmark
